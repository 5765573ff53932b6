#include "script/compiler/ClassChecker.h"

namespace tamber {

void ClassChecker::Check(const ClassNode& node) {
    if (classes_.IsCut(*classes_.At(*node.Name)))
        faults_.Error(node.Name->At, u"クラスが自分自身を継承しています。");
    if (node.Base != nullptr) CheckKind(*node.Base, false);
    for (const Node* name = node.Interfaces.First; name != nullptr; name = name->Next)
        CheckKind(*name, true);
    if (!node.IsInterface && !node.IsIntrinsic) CheckImplemented(node);
}

void ClassChecker::CheckKind(const Node& name, bool wantsInterface) {
    const ClassTable::Record* named = classes_.At(name);
    if (named == nullptr || named->IsInterface == wantsInterface) return;
    faults_.Error(name.At, wantsInterface ? u"これはインターフェイスではなくクラスです。"
                                          : u"これはクラスではなくインターフェイスです。");
}

/// An interface has the functions of those that it extends, too.
void ClassChecker::CheckImplemented(const ClassNode& node) {
    ClassTable::Record& record = *classes_.At(*node.Name);
    if (classes_.UnknownBase(record) != nullptr) return;
    std::vector<const ClassTable::Record*> open;
    std::unordered_set<const ClassTable::Record*> known;
    const auto add = [&](const ClassNode& definition) {
        for (const Node* name = definition.Interfaces.First; name != nullptr; name = name->Next) {
            const ClassTable::Record* interface = classes_.At(*name);
            if (interface != nullptr && interface->IsInterface && known.insert(interface).second)
                open.push_back(interface);
        }
    };
    add(node);
    while (!open.empty()) {
        const ClassTable::Record& interface = *open.back();
        open.pop_back();
        CheckMethods(node, record, interface);
        for (const ClassNode* definition : interface.Definitions) add(*definition);
    }
}

void ClassChecker::CheckMethods(const ClassNode& node, ClassTable::Record& record,
                                const ClassTable::Record& interface) {
    for (const ClassNode* definition : interface.Definitions)
        for (const MemberNode* member = definition->FirstMember; member; member = member->Next)
            if (!classes_.Find(record, *member->Name).IsFound)
                faults_.Error(node.Name->At, u"インターフェイスの関数 " +
                                                 faults_.Shown(member->Name->Text) +
                                                 u" がありません。");
}

}  // namespace tamber

#include "script/compiler/ClassChecker.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace tamber {

namespace {

constexpr const char16_t* ExtendsItself = u"自分自身を継承しています。";

/// What a name in a class is taken for.
constexpr unsigned Gets = 1;
constexpr unsigned Sets = 2;

unsigned RolesOf(MemberKind kind) {
    if (kind == MemberKind::Getter) return Gets;
    return kind == MemberKind::Setter ? Sets : Gets | Sets;
}

}  // namespace

void ClassChecker::Check(const ClassNode& node) {
    if (classes_.IsCut(*classes_.At(*node.Name))) faults_.Error(node.Name->At, ExtendsItself);
    if (node.Base != nullptr) CheckKind(*node.Base, false);
    for (const Node* name = node.Interfaces.First; name != nullptr; name = name->Next)
        CheckKind(*name, true);
    if (node.IsIntrinsic) return;
    CheckMembers(node);
    CheckInterfaces(node);
}

/// A name stands for one value or function, or for what gets and what sets a value. To tell of a
/// variable that a function of the class has the name of harms nothing.
void ClassChecker::CheckMembers(const ClassNode& node) {
    std::unordered_map<const Symbol*, unsigned> taken;
    for (const MemberNode* member = node.FirstMember; member; member = member->Next) {
        if (member->Kind == MemberKind::Field && member->Value == nullptr) continue;
        const unsigned roles = RolesOf(member->Kind);
        unsigned& known = taken[member->Name];
        if ((known & roles) != 0) faults_.Error(member->At, u"同じ名前のメンバーがあります。");
        known |= roles;
    }
}

void ClassChecker::CheckKind(const Node& name, bool wantsInterface) {
    const ClassTable::Record* named = classes_.At(name);
    if (named == nullptr || named->IsInterface == wantsInterface) return;
    faults_.Error(name.At, wantsInterface ? u"これはインターフェイスではなくクラスです。"
                                          : u"これはクラスではなくインターフェイスです。");
}

/// A class has the functions of its interfaces, or extends one that has them.
void ClassChecker::CheckInterfaces(const ClassNode& node) {
    ClassTable::Record& record = *classes_.At(*node.Name);
    const std::vector<const ClassTable::Record*> interfaces = InterfacesOf(node);
    if (node.IsInterface) {
        if (std::find(interfaces.begin(), interfaces.end(), &record) != interfaces.end())
            faults_.Error(node.Name->At, ExtendsItself);
        return;
    }
    if (!classes_.KnowsAllMembers(record)) return;
    String lacking;
    std::unordered_set<const Symbol*> asked;
    for (const ClassTable::Record* one : interfaces)
        for (const ClassNode* definition : one->Definitions)
            for (const MemberNode* member = definition->FirstMember; member; member = member->Next)
                if (asked.insert(member->Name).second &&
                    !classes_.Find(record, *member->Name).IsFound)
                    lacking += (lacking.empty() ? u"" : u"、") + faults_.Shown(member->Name->Text);
    if (!lacking.empty())
        faults_.Error(node.Name->At, u"インターフェイスの関数 " + lacking + u" がありません。");
}

/// Those that a class or interface names, and all that these extend.
std::vector<const ClassTable::Record*> ClassChecker::InterfacesOf(const ClassNode& node) {
    std::vector<const ClassTable::Record*> found;
    std::unordered_set<const ClassTable::Record*> known;
    const auto add = [&](const ClassNode& definition) {
        for (const Node* name = definition.Interfaces.First; name != nullptr; name = name->Next) {
            const ClassTable::Record* one = classes_.At(*name);
            if (one != nullptr && one->IsInterface && known.insert(one).second)
                found.push_back(one);
        }
    };
    add(node);
    for (std::size_t i = 0; i < found.size(); ++i)
        for (const ClassNode* definition : found[i]->Definitions) add(*definition);
    return found;
}

}  // namespace tamber

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

bool HaveSameMembers(const ClassNode& a, const ClassNode& b) {
    const MemberNode* one = a.FirstMember;
    const MemberNode* other = b.FirstMember;
    for (; one != nullptr && other != nullptr; one = one->Next, other = other->Next)
        if (one->Name != other->Name || one->Kind != other->Kind) return false;
    return one == other;
}

}  // namespace

void ClassChecker::Check(const ClassNode& node) {
    if (classes_.IsCut(*classes_.At(*node.Name))) faults_.Error(node.Name->At, ExtendsItself);
    if (node.Base != nullptr) CheckKind(*node.Base, false);
    for (const Node* name = node.Interfaces.First; name != nullptr; name = name->Next)
        CheckKind(*name, true);
    if (node.IsIntrinsic) return;
    CheckAgain(node);
    CheckMembers(node);
    CheckInterfaces(node);
}

/// A text may be included twice, but what is another class needs another name.
void ClassChecker::CheckAgain(const ClassNode& node) {
    const auto& definitions = classes_.At(*node.Name)->Definitions;
    const auto first = std::find_if(definitions.begin(), definitions.end(),
                                    [](const ClassNode* one) { return !one->IsIntrinsic; });
    if (!HaveSameMembers(**first, node))
        faults_.Error(node.Name->At, u"同じ名前の別のクラスがあります。");
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
    const auto has = [&](const Symbol& name) {
        return classes_.Find(record, name).IsFound ||
               (node.Constructor != nullptr && &name == node.Name->Name);
    };
    for (const ClassTable::Record* one : interfaces)
        for (const ClassNode* definition : one->Definitions)
            for (const MemberNode* member = definition->FirstMember; member; member = member->Next)
                if (asked.insert(member->Name).second && !has(*member->Name))
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

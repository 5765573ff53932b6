#include "script/compiler/ClassTable.h"

#include "script/compiler/DottedPath.h"
#include "script/compiler/PlayerClasses.h"

namespace tamber {

namespace {

constexpr std::string_view RootClass = "Object";

}  // namespace

ClassTable::Record& ClassTable::Define(const ClassNode& definition) {
    const std::string path = DottedPath(*definition.Name);
    Record& record = records_[path];
    if (record.Name == nullptr)
        record.Name = Kept(*definition.Name);
    else
        Forget();
    record.Base = definition.Base == nullptr ? std::string() : DottedPath(*definition.Base);
    for (const MemberNode* member = definition.FirstMember; member; member = member->Next)
        Add(record, *member);
    if (awaited_.erase(path) > 0) Forget();
    if (!record.Base.empty() && !Contains(record.Base)) awaited_.insert(record.Base);
    return record;
}

void ClassTable::Add(Record& record, const MemberNode& member) {
    record.members_[member.Name] = member.IsStatic;
    member.Name->IsMember = true;
}

/// A copy of a class's name that stays.
const Node* ClassTable::Kept(const Node& name) {
    Node& kept = names_.emplace_back(name);
    if (name.Kind == NodeKind::Member) kept.A = const_cast<Node*>(Kept(*name.A));
    return &kept;
}

/// Each answer is kept, so that a long chain of classes is not walked anew for each of them.
ClassTable::Member ClassTable::Find(Record& record, const Symbol& name) {
    if (const auto known = Known(record, name)) return *known;
    return record.found_[&name] = Search(record, name);
}

/// What the class itself has, or was found for it before.
std::optional<ClassTable::Member> ClassTable::Known(Record& record, const Symbol& name) const {
    const auto own = record.members_.find(&name);
    if (own != record.members_.end())
        return Member{.IsFound = true, .Class = own->second ? record.Name : nullptr};
    Renew(record);
    const auto found = record.found_.find(&name);
    if (found == record.found_.end()) return std::nullopt;
    return found->second;
}

/// In what the class extends.
ClassTable::Member ClassTable::Search(Record& record, const Symbol& name) {
    if (!name.IsMember) return OfPlayer(RootOf(record), name);
    const Record* at = &record;
    for (std::size_t count = 0; count <= records_.size(); ++count) {
        const auto base = records_.find(at->Base);
        if (base == records_.end()) return OfPlayer(at->Base, name);
        if (const auto known = Known(base->second, name)) return *known;
        at = &base->second;
    }
    return {};
}

/// Path of the class, none of the script's, that the first of those extends which a class comes
/// from; empty for none. Classes may be told to extend each other in a circle.
const std::string& ClassTable::RootOf(Record& record) {
    Renew(record);
    if (record.root_ != nullptr) return *record.root_;
    Record* at = &record;
    for (std::size_t count = 0; at->root_ == nullptr && count <= records_.size(); ++count) {
        const auto base = records_.find(at->Base);
        if (base == records_.end()) break;
        at = &base->second;
        Renew(*at);
    }
    record.root_ = at->root_ != nullptr ? at->root_ : &at->Base;
    return *record.root_;
}

/// What was found before something else was told of the classes is none of it certain.
void ClassTable::Renew(Record& record) const {
    if (record.generation_ == generation_) return;
    record.found_.clear();
    record.root_ = nullptr;
    record.generation_ = generation_;
}

ClassTable::Member ClassTable::OfPlayer(const std::string& base, const Symbol& name) {
    const bool isProperty = name.Property != Symbol::NoProperty && IsOnStage(base);
    const bool isFound = isProperty || HasPlayerMember(base, name.Text) ||
                         HasPlayerMember(RootClass, name.Text);
    return {.IsFound = isFound, .IsOfPlayer = isFound};
}

}  // namespace tamber

#include "script/compiler/ClassTable.h"

#include "script/compiler/DottedPath.h"
#include "script/compiler/PlayerClasses.h"

namespace tamber {

namespace {

constexpr std::string_view RootClass = "Object";

}  // namespace

ClassTable::Record& ClassTable::Define(const ClassNode& definition) {
    const std::string path = DottedPath(*definition.Name);
    std::string base = definition.Base == nullptr ? std::string() : DottedPath(*definition.Base);
    Record& record = records_[path];
    const bool isNew = record.Name == nullptr;
    if (isNew) record.Name = Kept(*definition.Name);
    const bool changesTree = awaited_.erase(path) > 0 || (!isNew && record.Base != base);
    if (changesTree) ++tree_;
    if (changesTree || !isNew) ++state_;
    record.Base = std::move(base);
    announced_.insert(path);
    if (!record.Base.empty() && BaseOf(record) == nullptr) awaited_.insert(record.Base);
    for (const MemberNode* member = definition.FirstMember; member; member = member->Next)
        Add(record, *member);
    return record;
}

void ClassTable::Add(Record& record, const MemberNode& node) {
    const bool isAccessor = node.Kind == MemberKind::Getter || node.Kind == MemberKind::Setter;
    const Member member{
        .IsFound = true, .Class = node.IsStatic ? record.Name : nullptr, .IsAccessor = isAccessor};
    const bool isNew = record.members_.insert_or_assign(node.Name, member).second;
    if (isNew) declarers_[node.Name].push_back(&record);
}

/// A copy of a class's name that stays.
const Node* ClassTable::Kept(const Node& name) {
    Node& kept = names_.emplace_back(name);
    if (name.Kind == NodeKind::Member) kept.A = const_cast<Node*>(Kept(*name.A));
    return &kept;
}

/// Each answer is kept for the class and for its base, which has other classes ask the same.
ClassTable::Member ClassTable::Find(Record& record, const Symbol& name) {
    if (const auto known = Known(record, name)) return *known;
    Settle(record);
    if (record.base_ != nullptr)
        if (const auto known = Known(*record.base_, name)) return record.found_[&name] = *known;
    const Member found = Search(record, name);
    if (record.base_ != nullptr) record.base_->found_[&name] = found;
    return record.found_[&name] = found;
}

ClassTable::Member ClassTable::FindAbove(Record& record, const Symbol& name) {
    Settle(record);
    return record.base_ == nullptr ? OfPlayer(record.Base, name) : Find(*record.base_, name);
}

/// What the class itself has, or was found for it before.
std::optional<ClassTable::Member> ClassTable::Known(Record& record, const Symbol& name) const {
    const auto own = record.members_.find(&name);
    if (own != record.members_.end()) return own->second;
    if (record.foundAt_ != state_) record.found_.clear();
    record.foundAt_ = state_;
    const auto found = record.found_.find(&name);
    if (found == record.found_.end()) return std::nullopt;
    return found->second;
}

ClassTable::Member ClassTable::Search(Record& record, const Symbol& name) {
    const Record* declarer = Declarer(record, name);
    if (declarer == nullptr) return OfPlayer(record.root_->Base, name);
    return declarer->members_.at(&name);
}

/// The nearest class above that has a member of its own; null for none. As many as have one are
/// looked at upward; when there are more above, each that has one is asked whether it stands there.
ClassTable::Record* ClassTable::Declarer(Record& record, const Symbol& name) {
    const auto declared = declarers_.find(&name);
    if (declared == declarers_.end()) return nullptr;
    Record* at = record.base_;
    for (std::size_t count = declared->second.size(); at != nullptr && count > 0; --count) {
        if (at->members_.contains(&name)) return at;
        at = at->base_;
    }
    if (at == nullptr) return nullptr;
    Record* nearest = nullptr;
    for (Record* one : declared->second) {
        Settle(*one);
        const bool isNearer = nearest == nullptr || one->depth_ > nearest->depth_;
        if (one->depth_ <= at->depth_ && isNearer && Above(*at, one->depth_) == one) nearest = one;
    }
    return nearest;
}

ClassTable::Member ClassTable::OfPlayer(const std::string& base, const Symbol& name) {
    const bool isProperty = name.Property != Symbol::NoProperty && IsOnStage(base);
    const bool isFound =
        isProperty || HasPlayerMember(base, name.Text) || HasPlayerMember(RootClass, name.Text);
    return {.IsFound = isFound, .IsOfPlayer = isFound};
}

/// The class that a class extends; null for one that the script does not have so far.
ClassTable::Record* ClassTable::BaseOf(const Record& record) {
    const auto base = records_.find(record.Base);
    return base == records_.end() ? nullptr : &base->second;
}

/// Finds the places of a class and of those above it. Classes that are told to extend each other
/// in a circle are cut apart where the circle was met.
void ClassTable::Settle(Record& record) {
    std::vector<Record*> open;
    for (Record* at = &record; at != nullptr && at->settledAt_ != tree_; at = BaseOf(*at)) {
        at->settledAt_ = tree_;
        at->isOpen_ = true;
        open.push_back(at);
    }
    for (; !open.empty(); open.pop_back()) {
        Record* base = BaseOf(*open.back());
        SettleBelow(*open.back(), base != nullptr && base->isOpen_ ? nullptr : base);
        open.back()->isOpen_ = false;
    }
}

/// Two jumps of one length make one of their sum.
void ClassTable::SettleBelow(Record& record, Record* base) const {
    record.base_ = base;
    record.root_ = base == nullptr ? &record : base->root_;
    record.depth_ = base == nullptr ? 0 : base->depth_ + 1;
    record.jump_ = base;
    if (base == nullptr || base->jump_ == nullptr || base->jump_->jump_ == nullptr) return;
    const Record& jump = *base->jump_;
    if (base->depth_ - jump.depth_ == jump.depth_ - jump.jump_->depth_) record.jump_ = jump.jump_;
}

/// The class at a depth above one, or itself.
ClassTable::Record* ClassTable::Above(Record& record, std::uint32_t depth) {
    Record* at = &record;
    while (at->depth_ > depth) at = at->jump_->depth_ >= depth ? at->jump_ : at->base_;
    return at;
}

}  // namespace tamber

#include "script/compiler/ClassTable.h"

#include <utility>

#include "script/compiler/DottedPath.h"
#include "script/compiler/PlayerClasses.h"
#include "script/compiler/ValueParts.h"

namespace tamber {

namespace {

constexpr std::string_view RootClass = "Object";

}  // namespace

void ClassTable::Define(const ClassNode& definition) {
    std::string path = DottedPath(*definition.Name);
    Record& record = records_[path];
    if (record.Name == nullptr) {
        inText_.push_back(&record);
        firstNames_.insert(FirstName(*definition.Name));
        record.path_ = std::move(path);
    }
    // The first counts, and one that makes the class before those that tell of it only.
    if (record.Name == nullptr || (record.IsIntrinsic && !definition.IsIntrinsic)) {
        record.Name = definition.Name;
        record.Base = definition.Base;
        record.IsInterface = definition.IsInterface;
        record.IsIntrinsic = definition.IsIntrinsic;
        record.basePath_ = record.Base == nullptr ? std::string() : DottedPath(*record.Base);
    }
    record.Definitions.push_back(&definition);
    for (const MemberNode* member = definition.FirstMember; member; member = member->Next)
        Add(record, *member);
}

void ClassTable::Add(Record& record, const MemberNode& node) {
    const bool isAccessor = node.Kind == MemberKind::Getter || node.Kind == MemberKind::Setter;
    const Member member{
        .IsFound = true,
        .Class = node.IsStatic ? record.Name : nullptr,
        .IsAccessor = isAccessor,
        .IsOfPlayer = !node.IsStatic && record.IsIntrinsic && HasPlayerClass(record.path_)};
    const bool isNew = record.members_.insert_or_assign(node.Name, member).second;
    if (isNew) declarers_[node.Name].push_back(&record);
}

ClassTable::Record* ClassTable::At(const Node& path) {
    const Symbol* first = FirstName(path);
    return first != nullptr && firstNames_.contains(first) ? At(DottedPath(path)) : nullptr;
}

ClassTable::Record* ClassTable::At(const std::string& path) {
    const auto found = records_.find(path);
    return found == records_.end() ? nullptr : &found->second;
}

/// What a class needs comes onto the stack above it; met there again, it has all that it needs, or
/// stands in a circle.
template <class Needs>
std::vector<const ClassNode*> ClassTable::Ordered(const Needs& needs) {
    std::vector<const ClassNode*> order;
    std::unordered_set<const Record*> open;
    std::unordered_set<const Record*> done;
    std::vector<Record*> waiting(inText_.rbegin(), inText_.rend());
    const auto need = [&](const Node* path) {
        Record* needed = path == nullptr ? nullptr : At(*path);
        if (needed != nullptr && !open.contains(needed)) waiting.push_back(needed);
    };
    while (!waiting.empty()) {
        const Record& record = *waiting.back();
        if (open.insert(&record).second) {
            for (const ClassNode* definition : record.Definitions) needs(*definition, need);
            continue;
        }
        waiting.pop_back();
        if (done.insert(&record).second)
            order.insert(order.end(), record.Definitions.begin(), record.Definitions.end());
    }
    return order;
}

std::vector<const ClassNode*> ClassTable::InOrder() {
    return Ordered([](const ClassNode& definition, const auto& need) {
        for (const Node* name = definition.Interfaces.First; name; name = name->Next) need(name);
        need(definition.Base);
    });
}

std::vector<const ClassNode*> ClassTable::InOrderOfValues() {
    return Ordered([](const ClassNode& definition, const auto& need) {
        for (const MemberNode* member = definition.FirstMember; member; member = member->Next)
            if (member->Kind == MemberKind::Field && member->Value != nullptr)
                ForEachPart(*member->Value, [&](const Node& part) { need(&part); });
        need(definition.Base);
    });
}

/// Each answer is kept for the class and for its base, which has other classes ask the same.
ClassTable::Member ClassTable::Find(Record& record, const Symbol& name) {
    if (const Member* known = Known(record, name)) return *known;
    Settle(record);
    if (record.base_ != nullptr)
        if (const Member* known = Known(*record.base_, name)) return record.found_[&name] = *known;
    const Member found = Search(record, name);
    if (record.base_ != nullptr) record.base_->found_[&name] = found;
    return record.found_[&name] = found;
}

ClassTable::Member ClassTable::FindAbove(Record& record, const Symbol& name) {
    Settle(record);
    return record.base_ == nullptr ? OfPlayer(record.basePath_, name) : Find(*record.base_, name);
}

const Node* ClassTable::UnknownBase(Record& record) {
    Settle(record);
    const Record& root = *record.root_;
    const bool isKnown =
        root.Base == nullptr || At(root.basePath_) != nullptr || HasPlayerClass(root.basePath_);
    return isKnown ? nullptr : root.Base;
}

bool ClassTable::KnowsAllMembers(Record& record) {
    Settle(record);
    const Record& root = *record.root_;
    return root.Base == nullptr || TellsPlayerMembers(root.basePath_);
}

bool ClassTable::IsCut(Record& record) {
    Settle(record);
    return record.isCut_;
}

/// What the class itself has, or was found for it before; null for nothing yet.
const ClassTable::Member* ClassTable::Known(const Record& record, const Symbol& name) const {
    const auto own = record.members_.find(&name);
    if (own != record.members_.end()) return &own->second;
    const auto found = record.found_.find(&name);
    return found == record.found_.end() ? nullptr : &found->second;
}

ClassTable::Member ClassTable::Search(Record& record, const Symbol& name) {
    const Record* declarer = Declarer(record, name);
    if (declarer != nullptr) return declarer->members_.at(&name);
    const Record& root = *record.root_;
    const Member found = root.IsIntrinsic ? OfPlayer(root.path_, name) : Member();
    return found.IsFound ? found : OfPlayer(root.basePath_, name);
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

ClassTable::Member ClassTable::OfPlayer(const std::string& path, const Symbol& name) {
    const bool isProperty = name.Property != Symbol::NoProperty && IsOnStage(path);
    const bool isFound =
        isProperty || HasPlayerMember(path, name.Text) || HasPlayerMember(RootClass, name.Text);
    return {.IsFound = isFound, .IsOfPlayer = isFound};
}

/// Finds the places of a class and of those above it. Classes that are told to extend each other
/// in a circle are cut apart where the circle was met.
void ClassTable::Settle(Record& record) {
    std::vector<Record*> open;
    for (Record* at = &record; at != nullptr && !at->isSettled_; at = BaseOf(*at)) {
        at->isSettled_ = true;
        at->isOpen_ = true;
        open.push_back(at);
    }
    for (; !open.empty(); open.pop_back()) {
        Record* base = BaseOf(*open.back());
        open.back()->isCut_ = base != nullptr && base->isOpen_;
        SettleBelow(*open.back(), open.back()->isCut_ ? nullptr : base);
        open.back()->isOpen_ = false;
    }
}

/// Two jumps of one length make one of their sum.
void ClassTable::SettleBelow(Record& record, Record* base) {
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

#pragma once

#include <algorithm>
#include <iterator>
#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "platform/RuntimeError.h"
#include "platform/text.h"
#include "platform/types.h"

namespace tamber {

/// An ordered list of object references, counted from 1, whose items may carry a string key.
/// Keys are compared without case. An index or key that does not exist raises error 9.
template <class T>
class Collection {
public:
    using Reference = std::shared_ptr<T>;

    Long Count() const { return static_cast<Long>(items_.size()); }
    bool Empty() const { return items_.empty(); }

    const Reference& Item(Long index) const {
        Check(index);
        return items_[static_cast<std::size_t>(index - 1)];
    }
    const Reference& operator()(Long index) const { return Item(index); }

    const Reference& Item(StringView key) const {
        const Reference* found = Find(key);
        if (found == nullptr) throw RuntimeError(ErrorSubscript, u"Collection", String(key));
        return *found;
    }

    /// The item with this key, or null.
    const Reference* Find(StringView key) const {
        const auto found = keys_.find(FoldCase(key));
        if (found == keys_.end()) return nullptr;
        for (const Reference& item : items_)
            if (item.get() == found->second) return &item;
        return nullptr;
    }

    void Add(Reference item) { items_.push_back(std::move(item)); }

    /// Appends with a key; a key already in use raises error 457.
    void Add(Reference item, StringView key) {
        if (!keys_.emplace(FoldCase(key), item.get()).second)
            throw RuntimeError(ErrorDuplicateKey, u"Collection", String(key));
        items_.push_back(std::move(item));
    }

    /// Inserts before `index`, 1 to Count + 1.
    void Insert(Reference item, Long index) {
        if (index != Count() + 1) Check(index);
        items_.insert(items_.begin() + (index - 1), std::move(item));
    }

    /// Inserts several before `index`, 1 to Count + 1.
    template <class Iterator>
    void Insert(Iterator first, Iterator last, Long index) {
        if (index != Count() + 1) Check(index);
        items_.insert(items_.begin() + (index - 1), first, last);
    }

    void Replace(Long index, Reference item) {
        Check(index);
        items_[static_cast<std::size_t>(index - 1)] = std::move(item);
    }

    void Remove(Long index) {
        Check(index);
        const T* gone = Item(index).get();
        std::erase_if(keys_, [gone](const auto& entry) { return entry.second == gone; });
        items_.erase(items_.begin() + (index - 1));
    }

    /// Removes each item, given as a reference, that `gone` says yes to. Gives how many went.
    template <class Predicate>
    Long RemoveIf(Predicate gone) {
        const auto kept = std::stable_partition(items_.begin(), items_.end(),
                                                [&gone](const auto& item) { return !gone(item); });
        const auto count = static_cast<Long>(items_.end() - kept);
        if (!keys_.empty()) {
            std::unordered_set<const T*> removed;
            for (auto item = kept; item != items_.end(); ++item) removed.insert(item->get());
            std::erase_if(keys_, [&](const auto& entry) { return removed.contains(entry.second); });
        }
        items_.erase(kept, items_.end());
        return count;
    }

    void Clear() {
        keys_.clear();
        items_.clear();
    }

    void Reserve(std::size_t count) { items_.reserve(count); }

    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

private:
    static constexpr Long ErrorSubscript = 9;
    static constexpr Long ErrorDuplicateKey = 457;

    void Check(Long index) const {
        if (index < 1 || index > Count()) throw RuntimeError(ErrorSubscript, u"Collection", u"");
    }

    std::vector<Reference> items_;
    std::unordered_map<String, const T*> keys_;
};

/// Empties a collection item by item from its end, so that items that refer to each other are let
/// go in a fixed order.
template <class T>
void ClearCollection(Collection<T>& list) {
    while (!list.Empty()) list.Remove(list.Count());
}

}  // namespace tamber

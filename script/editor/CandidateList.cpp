#include "script/editor/CandidateList.h"

#include <algorithm>

#include "platform/text.h"

namespace tamber {

namespace {

struct Keyed {
    String Key;
    std::size_t Index;

    bool operator<(const Keyed& other) const {
        const int order = Key.compare(other.Key);
        return order != 0 ? order < 0 : Index < other.Index;
    }
};

}  // namespace

CandidateList::CandidateList(std::vector<Candidate> candidates) {
    std::vector<Keyed> order;
    order.reserve(candidates.size());
    for (std::size_t i = 0; i < candidates.size(); ++i)
        order.push_back({FoldCase(candidates[i].Text), i});
    // The names of a script come in their order already, and are most of them.
    const auto rest = std::is_sorted_until(order.begin(), order.end());
    std::sort(rest, order.end());
    std::inplace_merge(order.begin(), rest, order.end());
    for (const Keyed& keyed : order) {
        Candidate& candidate = candidates[keyed.Index];
        if (candidates_.empty() || candidates_.back().Text != candidate.Text)
            candidates_.push_back(std::move(candidate));
    }
}

void CandidateList::SetString(StringView text) {
    selected_.reset();
    if (candidates_.empty()) return;
    const String wanted = FoldCase(text);
    const auto found = std::lower_bound(candidates_.begin(), candidates_.end(), wanted,
                                        [](const Candidate& candidate, const String& key) {
                                            return FoldCase(candidate.Text) < key;
                                        });
    const auto index = static_cast<std::size_t>(found - candidates_.begin());
    selected_ = std::min(index, candidates_.size() - 1);
}

}  // namespace tamber

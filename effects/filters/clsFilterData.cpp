#include "effects/filters/clsFilterData.h"

#include <type_traits>

namespace tamber {

namespace {

/// Hands over the switch and the record of each pair, as members of a set.
template <class Visit>
void ForEachPair(Visit&& visit) {
    ForEachField<clsFilterData>(
        [&visit](const auto& pair) { visit(pair.Switch.Member, pair.Filter.Member); });
}

template <class Member>
constexpr bool IsFilter = !std::is_same_v<Member, clsFilterEditColor clsFilterData::*>;

}  // namespace

Long clsFilterData::FilterCount() const {
    Long count = 0;
    ForEachPair([&](auto on, auto filter) {
        if constexpr (IsFilter<decltype(filter)>) count += Long{this->*on};
    });
    return count;
}

bool clsFilterData::CkMorphing(const clsFilterData& other) const {
    bool differs = false;
    ForEachPair([&](auto on, auto filter) {
        if constexpr (IsFilter<decltype(filter)>)
            differs = differs || (this->*on && (this->*filter).CkMorphing(other.*filter));
    });
    return differs;
}

std::shared_ptr<clsFilterData> clsFilterData::Morphing(const clsFilterData& other,
                                                       double weightThis,
                                                       double weightOther) const {
    auto result = std::make_shared<clsFilterData>();
    ForEachPair([&](auto on, auto filter) {
        if (!(this->*on)) return;
        (*result).*on = true;
        (*result).*filter = (this->*filter).Morphing(other.*filter, weightThis, weightOther);
    });
    return result;
}

std::shared_ptr<clsFilterData> clsFilterData::AuthoringCopy(const clsFilterData& other,
                                                            bool merge) const {
    auto result = std::make_shared<clsFilterData>();
    AuthoringCopyTo(other, merge, *result);
    return result;
}

void clsFilterData::AuthoringCopyTo(const clsFilterData& other, bool merge,
                                    clsFilterData& result) const {
    ForEachPair([&](auto on, auto filter) {
        using Filter = std::decay_t<decltype(this->*filter)>;
        result.*on = this->*on || (merge && other.*on);
        if (this->*on)
            result.*filter = this->*filter;
        else
            Filter::AuthoringCopyTo(result.*filter, merge ? &(other.*filter) : nullptr);
    });
}

void clsFilterData::Load(clsCSV& csv) {
    LoadFields(*this, csv);
}

void clsFilterData::Save(clsCSV& csv) const {
    SaveFields(*this, csv);
}

}  // namespace tamber

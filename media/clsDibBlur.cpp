#include <algorithm>
#include <numeric>

#include "media/clsDib.h"

namespace tamber {

namespace {

/// The weighted sum of the values around a position that moves on by one at a time, in a constant
/// number of steps. With weights n + 1 - |d|, moving on by one adds the n + 1 values ahead and
/// takes off the n + 1 values behind, the position's own among these.
template <class Sum>
class TriangleSum {
public:
    /// `value(i)` gives the value at any i from -n to length + n.
    template <class Value>
    TriangleSum(const std::vector<Long>& weights, Value value)
        : reach_(static_cast<Long>(weights.size()) / 2) {
        for (Long d = -reach_; d <= reach_; ++d)
            sum_ += static_cast<Sum>(weights[static_cast<std::size_t>(d + reach_)]) * value(d);
        for (Long d = 0; d <= reach_; ++d) {
            ahead_ += value(d + 1);
            behind_ += value(-d);
        }
    }

    Sum Value() const { return sum_; }

    template <class Value>
    void MoveOn(Long from, Value value) {
        const Sum next = value(from + 1);
        sum_ += ahead_ - behind_;
        ahead_ += value(from + reach_ + 2) - next;
        behind_ += next - value(from - reach_);
    }

private:
    Long reach_;
    Sum sum_ = 0;
    Sum ahead_ = 0;
    Sum behind_ = 0;
};

}  // namespace

std::vector<Long> clsDib::GetAlphaTbl(Long n) {
    std::vector<Long> weights;
    for (Long d = -n; d <= n; ++d) weights.push_back(n + 1 - std::abs(d));
    return weights;
}

void clsDib::BlendAlpha(Long n) {
    if (ADib.empty()) return;
    const std::vector<Long> weights = GetAlphaTbl(std::clamp(n, 0, MaxBlur));
    const auto axisSum = std::accumulate(weights.begin(), weights.end(), std::uint64_t{0});
    const std::uint64_t allWeights = axisSum * axisSum;
    const Long width = Width();
    const Long height = Height();
    const Bytes source = ADib;

    const auto valueAt = [&source, width, height](Long x, Long y) -> std::uint32_t {
        const Long row = std::clamp(y, 0, height - 1);
        return source[static_cast<std::size_t>(row) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(x)];
    };
    // Sums down each column, moved on from row to row; a row's sums are then summed across.
    std::vector<TriangleSum<std::uint32_t>> columns;
    columns.reserve(static_cast<std::size_t>(width));
    for (Long x = 0; x < width; ++x)
        columns.emplace_back(weights, [&valueAt, x](Long y) { return valueAt(x, y); });

    const auto columnAt = [&columns, width](Long x) -> std::uint64_t {
        return columns[static_cast<std::size_t>(std::clamp(x, 0, width - 1))].Value();
    };
    Byte* target = ADib.data();
    for (Long y = 0; y < height; ++y) {
        TriangleSum<std::uint64_t> across(weights, columnAt);
        for (Long x = 0; x < width; ++x) {
            *target++ = static_cast<Byte>(across.Value() / allWeights);
            across.MoveOn(x, columnAt);
        }
        for (Long x = 0; x < width; ++x)
            columns[static_cast<std::size_t>(x)].MoveOn(
                y, [&valueAt, x](Long row) { return valueAt(x, row); });
    }
}

}  // namespace tamber

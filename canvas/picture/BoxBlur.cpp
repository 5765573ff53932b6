#include "canvas/picture/BoxBlur.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace tamber {

namespace {

/// A box: `2 * Reach + 1` whole pixels, and one on each side that counts `Edge` of 255.
struct Box {
    Long Reach = 0;
    std::uint32_t Edge = 0;

    explicit Box(double size) {
        const double half = (size - 1) / 2;
        Reach = static_cast<Long>(std::floor(half));
        Edge = static_cast<std::uint32_t>(std::floor((half - Reach) * 255));
    }
    std::uint32_t Total() const {
        return static_cast<std::uint32_t>(2 * Reach + 1) * 255 + 2 * Edge;
    }
};

/// Divides by a number that is known before, rounding to the nearest.
class Divider {
public:
    explicit Divider(std::uint32_t by) : half_(by / 2), factor_((Unit + by - 1) / by) {}
    Byte operator()(std::uint32_t value) const {
        return static_cast<Byte>((value + half_) * factor_ >> Shift);
    }

private:
    static constexpr int Shift = 32;
    static constexpr std::uint64_t Unit = std::uint64_t{1} << Shift;
    std::uint64_t half_;
    std::uint64_t factor_;
};

/// Blurs lines of `step` bytes each, `count` of them, along the way from line to line: each byte
/// of a line for itself. With a step of a pixel that is along a row, with one of a row down the
/// columns.
void BlurLines(Byte* bytes, Long count, Long step, const Box& box, std::vector<Byte>& copy,
               std::vector<std::uint32_t>& sums) {
    const auto width = static_cast<std::size_t>(step);
    const std::size_t pad = static_cast<std::size_t>(box.Reach + 1) * width;
    const std::size_t size = static_cast<std::size_t>(count) * width;
    copy.assign(size + 2 * pad, 0);
    std::copy_n(bytes, size, copy.begin() + std::ptrdiff_t(pad));
    sums.assign(width, 0);
    const std::size_t whole = static_cast<std::size_t>(2 * box.Reach + 1);
    // The box of the line before the first one.
    for (std::size_t line = 0; line < whole; ++line)
        for (std::size_t i = 0; i < width; ++i) sums[i] += copy[line * width + i];
    const Divider divide(box.Total());
    for (Long line = 0; line < count; ++line) {
        const Byte* left = copy.data() + static_cast<std::size_t>(line) * width;
        const Byte* right = left + whole * width;
        Byte* to = bytes + static_cast<std::size_t>(line) * width;
        for (std::size_t i = 0; i < width; ++i) {
            sums[i] += right[i];
            sums[i] -= left[i];
            const std::uint32_t ends = std::uint32_t{left[i]} + right[i + width];
            to[i] = divide(sums[i] * 255 + ends * box.Edge);
        }
    }
}

}  // namespace

void BoxBlur(const BytePlane& plane, double sizeX, double sizeY, Long passes) {
    const Long rowBytes = plane.Width * plane.Channels;
    std::vector<Byte> copy;
    std::vector<std::uint32_t> sums;
    for (Long pass = 0; pass < passes; ++pass) {
        if (sizeX > 1)
            for (Long y = 0; y < plane.Height; ++y)
                BlurLines(plane.Bytes + std::size_t(y) * std::size_t(rowBytes), plane.Width,
                          plane.Channels, Box(sizeX), copy, sums);
        if (sizeY > 1) BlurLines(plane.Bytes, plane.Height, rowBytes, Box(sizeY), copy, sums);
    }
}

}  // namespace tamber

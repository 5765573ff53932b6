#pragma once

#include "platform/RuntimeError.h"

namespace tamber {

/// What one drawing may ask for. Far beyond real drawings; a file that asks for more is refused, so
/// that a small one cannot take minutes or all memory.
struct SvgBudget {
    /// Bytes of the text, unpacked.
    static constexpr std::size_t MostText = std::size_t{64} << 20;
    /// Elements open at a time.
    static constexpr std::size_t MostLevels = 250'000;
    /// Transformations in force at a time, on an element or on a gradient.
    static constexpr std::size_t MostMatrices = 256;
    /// Reuses within each other.
    static constexpr std::size_t MostUses = 64;

    std::size_t Shapes = 500'000;
    std::size_t Edges = 8'000'000;
    std::size_t Ids = 500'000;
    /// Characters read again: targets of `use`, values of entities.
    std::size_t Repeats = 16'000'000;

    static void Spend(std::size_t& left, std::size_t count) {
        Check(count <= left);
        left -= count;
    }
    static void Check(bool within) {
        if (!within) throw RuntimeError(ErrorOutOfRangeInput, u"Svg", u"too large");
    }
};

}  // namespace tamber

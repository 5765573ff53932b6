#pragma once

#include <cstdint>

namespace tamber {

/// Where something stands in a source.
struct Spot {
    /// Counted from 1; 0 for what no line of the source says.
    std::uint32_t Line = 0;
    /// In bytes from the beginning.
    std::uint32_t Offset = 0;
};

}  // namespace tamber

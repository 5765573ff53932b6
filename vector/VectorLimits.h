#pragma once

#include <algorithm>

#include "swf/SwfTypes.h"

namespace tamber {

/// Farthest coordinate taken from a file, twips. The distance between two such points, and a point
/// with a line's width beside it, still fit a Long.
inline constexpr Long MaxCoordinate = 1 << 29;

inline Long ToCoordinate(std::int64_t value) {
    return static_cast<Long>(std::clamp<std::int64_t>(value, -MaxCoordinate, MaxCoordinate));
}

inline SwfPoint ToCoordinates(std::int64_t x, std::int64_t y) {
    return {ToCoordinate(x), ToCoordinate(y)};
}

}  // namespace tamber

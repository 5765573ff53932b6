#pragma once

#include <array>

#include "swf/SwfTypes.h"

namespace tamber {

/// Top left, top right, bottom right and bottom left corner, twips.
using CornerPoints = std::array<SwfPoint, 4>;

/// From x and y of each corner in turn.
inline CornerPoints CornersOf(const std::array<Long, 8>& values) {
    CornerPoints corners;
    for (std::size_t i = 0; i < corners.size(); ++i)
        corners[i] = {values[2 * i], values[2 * i + 1]};
    return corners;
}

}  // namespace tamber

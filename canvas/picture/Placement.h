#pragma once

#include <memory>
#include <vector>

#include "canvas/picture/BlendMode.h"
#include "canvas/picture/Character.h"
#include "canvas/picture/PlacedFilter.h"
#include "swf/SwfTypes.h"

namespace tamber {

/// Something that stands on a timeline, as it looks on a frame.
struct Placement {
    Long Depth = 0;
    std::shared_ptr<const Character> Shown;
    /// Twips to twips.
    cairo_matrix_t Matrix{1, 0, 0, 1, 0, 0};
    SwfColorTransform Colors;
    /// Of a morph shape, to 65535.
    Long Ratio = 0;
    /// What stands above it up to this depth is only seen within it; 0 for what clips nothing.
    Long ClipDepth = 0;
    std::vector<PlacedFilter> Filters;
    BlendMode Blend = BlendMode::Normal;
    String Name;
    /// Frame, from 0, on which it came.
    Long Since = 0;
};

/// What stands on a frame, the lowest depth first. Equal placements of neighbouring frames are one.
using DisplayList = std::vector<std::shared_ptr<const Placement>>;

}  // namespace tamber

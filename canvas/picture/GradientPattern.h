#pragma once

#include "canvas/picture/PictureFill.h"

namespace tamber {

struct PatternDestroyer {
    void operator()(cairo_pattern_t* pattern) const { cairo_pattern_destroy(pattern); }
};
using PatternPointer = std::unique_ptr<cairo_pattern_t, PatternDestroyer>;

/// A linear or radial gradient as a pattern in twips; null for one that has no colours, or is
/// squeezed to nothing.
PatternPointer GradientPattern(const PictureFill& fill);

}  // namespace tamber

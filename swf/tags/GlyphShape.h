#pragma once

#include "platform/fonts.h"

namespace tamber {

/// Adds an outline's shape as a font tag holds it, whole bytes: one fill bit, no line bits; for
/// each contour a move, the first one with fill 0 set to 1, and its edges, closed by a line where
/// they do not end on the start; the end record. Points lie within GlyphOutlineRecord::Farthest.
void AddGlyphShape(const GlyphOutline& outline, Bytes& shapes);

}  // namespace tamber

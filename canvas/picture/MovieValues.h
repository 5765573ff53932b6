#pragma once

#include "canvas/picture/Character.h"
#include "canvas/picture/PictureColor.h"
#include "swf/SwfBits.h"

namespace tamber {

cairo_matrix_t ToCairo(const SwfMatrix& matrix);

PaintBox ToBox(const SwfRect& rect);

/// Red, green, blue and, where it has one, opacity.
PictureColor ReadColor(SwfBits& bits, bool hasAlpha);

}  // namespace tamber

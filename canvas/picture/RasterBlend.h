#pragma once

#include "canvas/picture/BlendMode.h"
#include "canvas/picture/Character.h"
#include "canvas/picture/Raster.h"

namespace tamber {

/// Mixes a raster, whose first pixel lies at (x, y) of the one below, into that, within `clip`.
void Blend(Raster& below, const Raster& above, Long x, Long y, BlendMode mode,
           const PaintBox& clip);

}  // namespace tamber

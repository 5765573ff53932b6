#pragma once

#include <array>

#include "canvas/picture/Raster.h"
#include "swf/SwfTypes.h"

namespace tamber {

/// Red, green, blue and opacity of a pixel, 0 to 255 each, colours not multiplied by the opacity.
std::array<double, 4> Unmultiplied(std::uint32_t pixel);
/// The pixel of such parts, which are held within their range and rounded.
std::uint32_t Multiplied(const std::array<double, 4>& parts);

/// Changes the colours of a raster by a transform.
void ApplyColors(Raster& raster, const SwfColorTransform& colors);

}  // namespace tamber

#pragma once

#include "canvas/picture/Raster.h"

namespace tamber {

/// The bytes of a PNG file.
Bytes PngBytes(const Raster& picture);

}  // namespace tamber

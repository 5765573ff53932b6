#pragma once

#include <array>

#include "swf/mdlSWFTag.h"

namespace tamber {

/// Top left, top right, bottom right and bottom left corner, twips.
using CornerPoints = std::array<SwfPoint, 4>;

}  // namespace tamber

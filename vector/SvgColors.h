#pragma once

#include "platform/types.h"

namespace tamber {

/// 0xRRGGBB from "#rgb", "#rrggbb", "rgb(r,g,b)" in decimal numbers or a colour keyword; 0 from any
/// other text.
Long ParseSvgColor(StringView text);

/// RGBA as styles hold it, red in the low byte, from 0xRRGGBB and alpha, 0 to 255.
Long ToSvgRgba(Long color, Long alpha);

}  // namespace tamber

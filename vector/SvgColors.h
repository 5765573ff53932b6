#pragma once

#include <optional>

#include "platform/types.h"

namespace tamber {

/// 0xRRGGBB from "#rgb", "#rrggbb", "rgb(r,g,b)" in decimal numbers or a colour keyword; nothing
/// from any other text.
std::optional<Long> FindSvgColor(std::string_view text);
/// As FindSvgColor, with 0 for a text that is no colour.
inline Long ParseSvgColor(std::string_view text) {
    return FindSvgColor(text).value_or(0);
}

/// RGBA as styles hold it, red in the low byte, from 0xRRGGBB and alpha, 0 to 255.
Long ToSvgRgba(Long color, Long alpha);

}  // namespace tamber

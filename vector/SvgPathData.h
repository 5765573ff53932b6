#pragma once

#include "vector/SvgLeftOut.h"
#include "vector/SvgPen.h"

namespace tamber {

/// Draws the commands of a `d` attribute. With `fill` every subpath is closed, without a line where
/// no command closes it.
void ParseSvgPathData(std::string_view d, bool fill, SvgPen& pen, SvgLeftOut& leftOut);

/// Draws the points of a `polyline`, or of a `polygon`, closed for a fill.
void DrawSvgPoints(std::string_view points, bool fill, bool polygon, SvgPen& pen,
                   SvgLeftOut& leftOut);

}  // namespace tamber

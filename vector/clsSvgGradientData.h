#pragma once

#include "vector/clsSvgMatrixData.h"

namespace tamber {

/// Place along one axis: a fraction of the shape's extent, or pixels.
struct SvgCoordinate {
    Single Value = 0;
    bool Percent = false;
};

/// One gradient as its element tells it.
class clsSvgGradientData {
public:
    /// "Linear" or "Radial".
    std::string_view GradName;
    /// Coordinates are pixels of the drawing, else fractions of the shape's extent.
    bool UserSpaceOnUse = false;
    /// 0 pad, 1 reflect, 2 repeat.
    Long Spread = 0;
    /// Start of a linear gradient, centre of a radial one.
    SvgCoordinate StartX, StartY;
    /// End of a linear gradient, focus of a radial one.
    SvgCoordinate EndX, EndY;
    SvgCoordinate r{0.5f};
    SvgMatrixList colGradientMatrix;
    /// 0xRRGGBB, and opacities and places from 0 to 255.
    std::vector<Long> ColorTbl;
    std::vector<Long> OpacityTbl;
    std::vector<Byte> ColorPosTbl;
    /// Id of the gradient whose colours count when there are none here.
    std::string_view linkName;

    /// True when the colours lie relative to the extent of the shape that they fill.
    bool NeedsBounds() const {
        return !UserSpaceOnUse || StartX.Percent || StartY.Percent || EndX.Percent ||
               EndY.Percent || r.Percent;
    }
};

}  // namespace tamber

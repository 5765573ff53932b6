#pragma once

#include <ft2build.h>
#include FT_OUTLINE_H

#include <span>
#include <vector>

#include "platform/CubicCut.h"
#include "platform/fonts.h"

namespace tamber {

/// Where the points of a face lie in the cell.
struct CellPlacement {
    /// Height of the cell in the units of the face's points.
    double CellHeight = 0;
    /// Distance of the base line from the cell's top, units of the cell.
    Long Ascent = 0;
    /// Step to the right for each step up.
    double Shear = 0;
};

/// Units of the cell from those of the face.
inline double CellUnits(double value, const CellPlacement& placement) {
    constexpr double CellSize = 1024;
    return value * CellSize / placement.CellHeight;
}

/// Turns outlines of faces into those of the cell.
class CellOutline {
public:
    /// Fills an empty outline with the contours of a face's: quadratics as they are, cubics cut.
    /// False when the points do not make curves, or lie farther off than a record holds.
    bool Read(const FT_Outline& source, const CellPlacement& placement, GlyphOutline& outline);

private:
    /// False for points out of reach.
    bool PlacePoints(std::span<const FT_Vector> points, const CellPlacement& placement);

    /// Points of the face in their places. Kept for the next outline's.
    std::vector<OutlinePoint> placed_;
};

}  // namespace tamber

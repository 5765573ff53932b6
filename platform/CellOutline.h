#pragma once

#include <ft2build.h>
#include FT_OUTLINE_H

#include "platform/OutlineStore.h"

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
double CellUnits(double value, const CellPlacement& placement);

/// Adds the contours of a face's outline: quadratics as they are, cubics cut. Their memory comes
/// from the store. False when the points do not make curves.
bool AddContours(const FT_Outline& outline, const CellPlacement& placement, OutlineStore& store,
                 std::vector<OutlineContour>& contours);

}  // namespace tamber

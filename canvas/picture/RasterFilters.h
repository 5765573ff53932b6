#pragma once

#include "canvas/picture/PlacedFilter.h"
#include "canvas/picture/Raster.h"

namespace tamber {

/// What filters made of a raster, and where its first pixel lies in that one's.
struct FilteredRaster {
    Raster Pixels;
    Long Left = 0;
    Long Top = 0;
};

/// Applies filters, one behind the other, to a raster that grows as far as they need. `scale`:
/// pixels for a pixel of the stage.
FilteredRaster ApplyFilters(const Raster& source, const std::vector<PlacedFilter>& filters,
                            double scale);

}  // namespace tamber

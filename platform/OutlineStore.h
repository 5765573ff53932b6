#pragma once

#include "platform/fonts.h"

namespace tamber {

/// Memory of outlines that are done with, for the next ones: an outline is some thirty small
/// vectors, and to allocate them takes longer than to load the glyph.
class OutlineStore {
public:
    /// Takes the contours' memory and leaves none.
    void Reclaim(std::vector<OutlineContour>& contours);

    /// Empty, with the memory of an earlier one where there is any.
    std::vector<OutlinePoint> Points();
    std::vector<OutlineCurve> Curves();

private:
    std::vector<std::vector<OutlinePoint>> points_;
    std::vector<std::vector<OutlineCurve>> curves_;
};

}  // namespace tamber

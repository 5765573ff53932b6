#pragma once

#include <cstdint>
#include <vector>

#include "canvas/picture/PicturePath.h"
#include "swf/SwfTypes.h"

namespace tamber {

/// An edge of a shape with what lies on its two sides and the line along it; styles count from 1,
/// 0 is none. A straight edge has its anchor as control point.
struct OutlineStep {
    SwfPoint From;
    SwfPoint Control;
    SwfPoint To;
    Long Fill0 = 0;
    Long Fill1 = 0;
    Long Line = 0;
    bool blCurved = false;
};

/// The outlines of one set of styles: for each fill the closed contours around it, for each line
/// the subpaths along it. Edges may come in any order, as a fill's often do.
class OutlineBuilder {
public:
    explicit OutlineBuilder(const std::vector<OutlineStep>& steps) : steps_(steps) {}

    /// One for each of `count` fills, from style 1 on.
    std::vector<PicturePath> Fills(Long count) const;
    /// One for each line; `noClose` tells which of them leave their ends open where they meet.
    std::vector<PicturePath> Lines(const std::vector<bool>& noClose) const;

private:
    const std::vector<OutlineStep>& steps_;
};

}  // namespace tamber

#pragma once

#include "vector/CornerPoints.h"

namespace tamber {

/// Stretches a rectangle over a quadrilateral: the lines that join equal parts of opposite sides
/// meet in the mapped point.
class FreeTransformation {
public:
    /// `width` and `height` of the rectangle, twips.
    FreeTransformation(Long width, Long height, const CornerPoints& corners)
        : width_(width), height_(height), corners_(corners) {}

    /// Where a point goes. `angle`, when given, gets the direction of the upright line through it,
    /// in degrees; 90 for a vertical one.
    SwfPoint MapPoint(SwfPoint point, Single* angle = nullptr) const;

private:
    Long width_;
    Long height_;
    CornerPoints corners_;
};

}  // namespace tamber

#pragma once

#include <optional>
#include <vector>

#include "swf/authoring/QuadraticCurve.h"
#include "swf/tags/clsSWFTShapeRecords.h"

namespace tamber {

/// The edges of a shape as a way to walk along, pixels. A move leaps without a length.
class OutlinePath {
public:
    struct Place {
        CurvePoint Point;
        /// Direction of travel, degrees; y grows downwards.
        double Angle = 0;
    };

    OutlinePath(const clsSWFTShapeRecords& records, Single scaleX, Single scaleY);

    double Length() const { return length_; }
    /// The place after so much of the way, kept to its ends.
    Place At(double way) const;

private:
    struct Segment {
        CurvePoint Start, End;
        /// A line has none.
        std::optional<QuadraticCurve> Curve;
        CurvePoint Control;
        double Begin = 0;  ///< of the way
        double Length = 0;
    };

    void Add(Segment segment);

    std::vector<Segment> segments_;
    double length_ = 0;
};

}  // namespace tamber

#pragma once

#include <vector>

#include "document/elements/clsLayerObjElement.h"
#include "swf/SwfTypes.h"
#include "swf/authoring/QuadraticCurve.h"

namespace tamber {

/// The way of a tween from one key frame's position to the next, in twips.
class TweenPath {
public:
    /// From `start` through its tween points to the position of `end`; `origin` in pixels.
    TweenPath(const clsLayerObjElement& start, const clsLayerObjElement& end, Single originX,
              Single originY);

    std::size_t SegmentCount() const { return segments_.size(); }
    /// Position at `ratio`, 0 to 65535, measured along the way.
    SwfPoint At(Long ratio) const;

private:
    struct Segment {
        bool Curved;
        CurvePoint Start, Control, End;
        double Length;
        double Total;  ///< length of the way up to the end of this segment
    };

    void AddLine(CurvePoint from, CurvePoint to);
    void AddCurve(CurvePoint from, CurvePoint control, CurvePoint to);

    std::vector<Segment> segments_;
};

}  // namespace tamber

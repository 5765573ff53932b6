#pragma once

#include <vector>

#include "swf/tags/clsSWFTShapeRecords.h"

namespace tamber {

struct PdrPoint {
    /// Control point of a quadratic curve, else a point on the path.
    bool isControl = false;
    SwfPoint Point;
};

/// Draws one contour. Two control points in a row imply a point on the path half-way between them,
/// as in a TrueType outline.
class PdrContour {
public:
    /// At least one point; a lone one must be on the path, else error 9.
    PdrContour(const std::vector<PdrPoint>& points, bool closed, clsSWFTShapeRecords& records);

    void Draw();

private:
    void MoveToStart();
    void Walk();
    void DrawLast();
    void Close();
    void LineTo(SwfPoint point) { records_.DrawLineTo(point.X, point.Y); }
    void CurveTo(SwfPoint control, SwfPoint anchor) {
        records_.DrawCurveTo(control.X, control.Y, anchor.X, anchor.Y);
    }

    const std::vector<PdrPoint>& points_;
    bool closed_;
    clsSWFTShapeRecords& records_;
    SwfPoint start_;
    std::size_t next_ = 1;
};

}  // namespace tamber

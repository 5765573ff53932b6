#pragma once

#include <algorithm>
#include <limits>

#include "swf/tags/clsSWFTShapeRecord.h"

namespace tamber {

/// Bounds that grow point by point, twips; empty until the first one.
struct ShapeBounds {
    Long XMin = std::numeric_limits<Long>::max();
    Long XMax = std::numeric_limits<Long>::min();
    Long YMin = std::numeric_limits<Long>::max();
    Long YMax = std::numeric_limits<Long>::min();

    void Include(Long x, Long y, Long margin) {
        XMin = std::min(XMin, x - margin);
        XMax = std::max(XMax, x + margin);
        YMin = std::min(YMin, y - margin);
        YMax = std::max(YMax, y + margin);
    }
    /// All 0 while there is no point.
    SwfRect Rectangle() const { return XMin > XMax ? SwfRect{} : SwfRect{XMin, YMin, XMax, YMax}; }
};

/// The records of a shape, built by drawing commands in absolute twips.
class clsSWFTShapeRecords {
public:
    std::vector<clsSWFTShapeRecord> colShapeRecords;
    Long CurrentX = 0;
    Long CurrentY = 0;
    Long LineWidth = 0;
    Long FillStyle0 = 0;
    Long FillStyle1 = 0;
    Long LineStyle = 0;

    /// Moves the pen and grows the bounds, those with the stroke by LineWidth in each direction.
    void SetXY(Long x, Long y);
    void SetFill0(Long index);
    void SetFill1(Long index);
    void SetLine(Long index);
    /// New styles in mid-shape; the result is the index in the new list, from 1.
    Long AddNewFillStyle(clsSWFTFillStyle fill);
    Long AddNewLineStyle(clsSWFTLineStyle line);
    void MovePenTo(Long x, Long y);
    void MovePen(Long dx, Long dy) { MovePenTo(CurrentX + dx, CurrentY + dy); }
    /// One edge; a distance beyond 17 bits is cut when it is written.
    void DrawLineTo(Long x, Long y);
    void DrawLine(Long dx, Long dy) { DrawLineTo(CurrentX + dx, CurrentY + dy); }
    /// Level and upright lines of any length, in steps that 17 bits hold.
    void DrawLineHTo(Long x);
    void DrawLineVTo(Long y);
    void DrawCurveTo(Long cx, Long cy, Long ax, Long ay);
    /// The anchor is relative to the control point.
    void DrawCurve(Long dcx, Long dcy, Long dax, Long day);
    /// Joins another record list and takes the given bounds.
    void AddRecordCollection(const std::vector<clsSWFTShapeRecord>& records, Long xMin, Long xMax,
                             Long yMin, Long yMax);
    SwfRect GetBounds(bool blRecompute);
    SwfRect GetEdgeBounds() const { return edgeBounds_.Rectangle(); }

    void Save(Long fillBits, Long lineBits, Long version) const;

private:
    clsSWFTShapeStyleChange& LastStyleChange();

    ShapeBounds bounds_;
    ShapeBounds edgeBounds_;
};

// Inline, since drawings call these for every edge.
inline void clsSWFTShapeRecords::SetXY(Long x, Long y) {
    CurrentX = x;
    CurrentY = y;
    bounds_.Include(x, y, LineWidth);
    edgeBounds_.Include(x, y, 0);
}

inline void clsSWFTShapeRecords::DrawLineTo(Long x, Long y) {
    colShapeRecords.emplace_back(clsSWFTShapeStraightEdge{x, y});
    SetXY(x, y);
}

inline void clsSWFTShapeRecords::DrawCurveTo(Long cx, Long cy, Long ax, Long ay) {
    colShapeRecords.emplace_back(clsSWFTShapeCurveEdge{cx, cy, ax, ay});
    SetXY(cx, cy);
    SetXY(ax, ay);
}

}  // namespace tamber

#pragma once

#include "swf/tags/clsSWFTShapeRecords.h"
#include "vector/SvgBudget.h"
#include "vector/clsSvgMatrixData.h"

namespace tamber {

/// Draws the edges of one element, given in its own twips, into the records of a shape.
class SvgPen {
public:
    /// `lineWidth` of the line in the records' twips, where `line` is set.
    SvgPen(clsSWFTShapeRecords& records, const SvgTransformation& transformation, bool line,
           Long lineWidth, SvgBudget& budget);

    /// Makes room for about so many edges.
    void Expect(std::size_t edges);
    /// Begins a subpath.
    void MovePenTo(Long x, Long y);
    void DrawLineTo(Long x, Long y);
    void DrawCurveTo(SwfPoint control, SwfPoint anchor);
    /// A cubic from the pen's place, as four quadratic curves.
    void DrawCubicTo(SwfPoint control1, SwfPoint control2, SwfPoint anchor);
    /// Goes back to where the subpath began, unless the pen is there. With `blLine` false the edge
    /// is closed for the fill only, and the line is off from there on.
    void Close(bool blLine);
    void TurnLineOn();

private:
    void Spend(std::size_t edges = 1) { SvgBudget::Spend(budget_.Edges, edges * edgeCost_); }

    clsSWFTShapeRecords& records_;
    const SvgTransformation& transformation_;
    bool line_;
    Long reach_;
    SvgBudget& budget_;
    std::size_t edgeCost_;
    SwfPoint start_;
};

}  // namespace tamber

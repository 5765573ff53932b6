#include "swf/tags/GlyphShape.h"

#include <utility>

#include "swf/mdlSWFTag.h"
#include "swf/tags/ShapeEdge.h"

namespace tamber {

namespace {

/// Bits of the longest move: its flags, width and fields, and a fill.
constexpr std::size_t LongestMove = 6 + 5 + 2 * 17 + 1;
/// Bits of the index widths before the first record and of the end record.
constexpr std::size_t Frame = 8 + 6;

/// Flags of a style change record.
constexpr std::uint64_t Fill0Flag = 2;
constexpr std::uint64_t MoveFlag = 1;

class GlyphWriter {
public:
    explicit GlyphWriter(Byte* target) : run_(target) {}

    /// Behind the last byte.
    Byte* Write(const GlyphOutline& outline) {
        run_.Put(8, 0x10);
        if (outline.Contours.empty()) run_.Put(7, Fill0Flag << 1 | 1);
        const OutlineEdge* edge = outline.Edges.data();
        for (const OutlineContour& contour : outline.Contours) {
            MoveTo(contour.Start);
            for (const OutlineEdge* end = edge + contour.EdgeCount; edge != end; ++edge)
                Draw(*edge);
            Close(contour.Start);
        }
        run_.Put(6, 0);
        return run_.AlignedEnd();
    }

private:
    void MoveTo(OutlinePoint to) {
        using namespace shape_edge;
        const auto width = static_cast<Long>(std::bit_width(Magnitude(to.X) | Magnitude(to.Y))) + 1;
        run_.Put(11, (filled_ ? MoveFlag : MoveFlag | Fill0Flag) << 5 | static_cast<Byte>(width));
        run_.Put(2 * width, Field(to.X, width) << width | Field(to.Y, width));
        if (!filled_) run_.Put(1, 1);
        filled_ = true;
        pen_.X = to.X;
        pen_.Y = to.Y;
    }
    void Draw(const OutlineEdge& edge) {
        const OutlinePoint control = edge.Control;
        const OutlinePoint anchor = edge.Anchor;
        if (edge.Curved)
            shape_edge::Save(clsSWFTShapeCurveEdge{control.X, control.Y, anchor.X, anchor.Y}, pen_,
                             run_);
        else
            shape_edge::Save(clsSWFTShapeStraightEdge{anchor.X, anchor.Y}, pen_, run_);
    }
    void Close(OutlinePoint start) {
        if (pen_.X != start.X || pen_.Y != start.Y)
            shape_edge::Save(clsSWFTShapeStraightEdge{start.X, start.Y}, pen_, run_);
    }

    mdlSWFTag::BitRun run_;
    ShapePen pen_;
    bool filled_ = false;
};

}  // namespace

void AddGlyphShape(const GlyphOutline& outline, Bytes& shapes) {
    // Each contour may be closed by a line.
    std::size_t edges = outline.Contours.size();
    for (const OutlineContour& contour : outline.Contours)
        edges += static_cast<std::size_t>(contour.EdgeCount);
    const std::size_t room = mdlSWFTag::BitRun::RoomFor(
        Frame + LongestMove * outline.Contours.size() + edges * shape_edge::LongestRecord);
    // Kept for the next glyph, since a glyph needs a fraction of the room that it may need.
    static thread_local Bytes target;
    if (target.size() < room) target.resize(room);
    const Byte* end = GlyphWriter(target.data()).Write(outline);
    shapes.insert(shapes.end(), std::as_const(target).data(), end);
}

}  // namespace tamber

#include "swf/tags/clsSWFTShapeRecord.h"

#include <algorithm>
#include <bit>

namespace tamber {

namespace {

constexpr Long MaxEdgeBits = 17;
/// Bits of the longest edge record.
constexpr std::size_t LongestEdge = 6 + 4 * 32;

Long ClampDelta(Long delta, Long width) {
    if (width < MaxEdgeBits) return delta;
    return std::clamp(delta, -0x10000, 0xFFFF);
}

/// Difference of two places, wrapped as the 32-bit stream holds it.
Long Delta(Long to, Long from) {
    return static_cast<Long>(static_cast<std::uint32_t>(to) - static_cast<std::uint32_t>(from));
}

/// Bits that a number has beside its sign; those of several are joined by "or".
std::uint32_t Magnitude(Long value) {
    return static_cast<std::uint32_t>(value ^ (value >> 31));
}

/// Width of the fields of an edge: at least 3, which the second bit stands for.
Long EdgeWidth(std::uint32_t magnitudes) {
    return static_cast<Long>(std::bit_width(magnitudes | 2u)) + 1;
}

std::uint64_t Field(Long value, Long width) {
    return static_cast<std::uint32_t>(value) & ((std::uint64_t{1} << width) - 1);
}

inline void SaveEdge(const clsSWFTShapeStraightEdge& edge, ShapePen& pen,
                     mdlSWFTag::BitRun& run) {
    const Long dx = Delta(edge.DrawX, pen.X);
    const Long dy = Delta(edge.DrawY, pen.Y);
    const Long width = std::min(EdgeWidth(Magnitude(dx) | Magnitude(dy)), MaxEdgeBits);
    // An edge, straight, its width, and whether it has both directions.
    const std::uint64_t head = 3u << 4 | static_cast<std::uint64_t>(width - 2);
    if (dx != 0 && dy != 0) {
        const std::uint64_t fields = Field(ClampDelta(dx, width), width) << width |
                                     Field(ClampDelta(dy, width), width);
        run.Put(7 + 2 * width, (head << 1 | 1) << (2 * width) | fields);
    } else {
        const bool vertical = dy != 0;
        run.Put(8 + width, (head << 2 | (vertical ? 1u : 0u)) << width |
                               Field(ClampDelta(vertical ? dy : dx, width), width));
    }
    pen.X = edge.DrawX;
    pen.Y = edge.DrawY;
}

inline void SaveEdge(const clsSWFTShapeCurveEdge& edge, ShapePen& pen, mdlSWFTag::BitRun& run) {
    const Long cx = Delta(edge.ControlX, pen.X);
    const Long cy = Delta(edge.ControlY, pen.Y);
    const Long ax = Delta(edge.AnchorX, edge.ControlX);
    const Long ay = Delta(edge.AnchorY, edge.ControlY);
    const Long width =
        EdgeWidth(Magnitude(cx) | Magnitude(cy) | Magnitude(ax) | Magnitude(ay));
    const std::uint64_t head = 2u << 4 | static_cast<std::uint64_t>((width - 2) & 15);
    const std::uint64_t control = Field(cx, width) << width | Field(cy, width);
    const std::uint64_t anchor = Field(ax, width) << width | Field(ay, width);
    constexpr Long WidestAtOnce = 12;
    if (width <= WidestAtOnce) {
        run.Put(6 + 4 * width, (head << (2 * width) | control) << (2 * width) | anchor);
    } else {
        run.Put(6, head);
        for (const Long delta : {cx, cy, ax, ay}) run.Put(width, Field(delta, width));
    }
    pen.X = edge.AnchorX;
    pen.Y = edge.AnchorY;
}

}  // namespace

Long StyleIndexBits(std::size_t count) {
    return mdlSWFTag::BitLength(static_cast<Long>(count), true);
}

void SaveFillStyles(const FillStyleList& styles, const FillStyleList* ends) {
    mdlSWFTag::SetListCount(static_cast<Long>(styles.size()));
    for (std::size_t i = 0; i < styles.size(); ++i)
        styles[i].Save(ends != nullptr && i < ends->size() ? &(*ends)[i] : nullptr);
}

void SaveLineStyles(const LineStyleList& styles, const LineStyleList* ends, Long version) {
    mdlSWFTag::SetListCount(static_cast<Long>(styles.size()));
    for (std::size_t i = 0; i < styles.size(); ++i)
        styles[i].Save(version, ends != nullptr && i < ends->size() ? &(*ends)[i] : nullptr);
}

void clsSWFTShapeStyleChange::SaveNewStyles(ShapePen& pen) const {
    mdlSWFTag::SetBits(2, 1);
    mdlSWFTag::SetBits(4, 14);
    for (const Long width : {pen.FillBits, pen.FillBits, pen.LineBits})
        mdlSWFTag::SetBits(width, 0);
    mdlSWFTag::SetAlign();
    SaveFillStyles(colFillStyles, nullptr);
    SaveLineStyles(colLineStyles, nullptr, pen.Version);
    pen.FillBits = StyleIndexBits(colFillStyles.size());
    pen.LineBits = StyleIndexBits(colLineStyles.size());
    mdlSWFTag::SetBits(4, pen.FillBits);
    mdlSWFTag::SetBits(4, pen.LineBits);
}

void clsSWFTShapeStyleChange::SaveMove(ShapePen& pen) const {
    mdlSWFTag::SetBits(1, blMove ? 1 : 0);
    if (!blMove) return;
    const Long width =
        std::max(mdlSWFTag::BitLength(MoveX, false), mdlSWFTag::BitLength(MoveY, false));
    mdlSWFTag::SetBits(5, width);
    mdlSWFTag::SetBits(width, MoveX);
    mdlSWFTag::SetBits(width, MoveY);
    pen.X = MoveX;
    pen.Y = MoveY;
}

void clsSWFTShapeStyleChange::Save(ShapePen& pen) const {
    if (pen.Version == ShapePen::MorphEnd) {
        mdlSWFTag::SetBits(5, 0);
        SaveMove(pen);
        return;
    }
    if (hasNewStyles()) SaveNewStyles(pen);
    mdlSWFTag::SetBits(2, 0);
    mdlSWFTag::SetBits(1, blLineStyle ? 1 : 0);
    mdlSWFTag::SetBits(1, blFillStyle1 ? 1 : 0);
    mdlSWFTag::SetBits(1, blFillStyle0 ? 1 : 0);
    SaveMove(pen);
    if (blFillStyle0) mdlSWFTag::SetBits(pen.FillBits, FillStyle0);
    if (blFillStyle1) mdlSWFTag::SetBits(pen.FillBits, FillStyle1);
    if (blLineStyle) mdlSWFTag::SetBits(pen.LineBits, LineStyle);
}

void SaveEdges(std::span<const clsSWFTShapeRecord> edges, ShapePen& pen) {
    // Room is made for a block at a time, and the pen is kept apart from memory within it.
    constexpr std::size_t Block = 1024;
    for (; !edges.empty(); edges = edges.subspan(std::min(Block, edges.size()))) {
        mdlSWFTag::BitRun run(Block * LongestEdge);
        ShapePen at = pen;
        for (const clsSWFTShapeRecord& edge : edges.first(std::min(Block, edges.size()))) {
            if (const auto* line = std::get_if<clsSWFTShapeStraightEdge>(&edge))
                SaveEdge(*line, at, run);
            else
                SaveEdge(*std::get_if<clsSWFTShapeCurveEdge>(&edge), at, run);
        }
        pen = at;
    }
}

}  // namespace tamber

#include "swf/tags/clsSWFTShapeRecord.h"

#include <algorithm>
#include <bit>

namespace tamber {

namespace {

constexpr Long MaxEdgeBits = 17;
/// Bits of the longest edge record.
constexpr std::size_t LongestEdge = 6 + 4 * MaxEdgeBits;

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

inline void SaveEdge(const clsSWFTShapeStraightEdge& edge, ShapePen& pen, mdlSWFTag::BitRun& run) {
    const Long dx = Delta(edge.DrawX, pen.X);
    const Long dy = Delta(edge.DrawY, pen.Y);
    const Long width = std::min(EdgeWidth(Magnitude(dx) | Magnitude(dy)), MaxEdgeBits);
    // An edge, straight, its width, and whether it has both directions.
    const std::uint64_t head = 3u << 4 | static_cast<std::uint64_t>(width - 2);
    if (dx != 0 && dy != 0) {
        const std::uint64_t fields =
            Field(ClampDelta(dx, width), width) << width | Field(ClampDelta(dy, width), width);
        run.Put(7 + 2 * width, (head << 1 | 1) << (2 * width) | fields);
    } else {
        const bool vertical = dy != 0;
        run.Put(8 + width, (head << 2 | (vertical ? 1u : 0u)) << width |
                               Field(ClampDelta(vertical ? dy : dx, width), width));
    }
    pen.X = edge.DrawX;
    pen.Y = edge.DrawY;
}

/// False, with nothing written, for a curve whose fields are wider than a record can tell.
inline bool SaveEdge(const clsSWFTShapeCurveEdge& edge, ShapePen& pen, mdlSWFTag::BitRun& run) {
    const Long cx = Delta(edge.ControlX, pen.X);
    const Long cy = Delta(edge.ControlY, pen.Y);
    const Long ax = Delta(edge.AnchorX, edge.ControlX);
    const Long ay = Delta(edge.AnchorY, edge.ControlY);
    const Long width = EdgeWidth(Magnitude(cx) | Magnitude(cy) | Magnitude(ax) | Magnitude(ay));
    const std::uint64_t head = 2u << 4 | static_cast<std::uint64_t>(width - 2);
    const std::uint64_t control = Field(cx, width) << width | Field(cy, width);
    const std::uint64_t anchor = Field(ax, width) << width | Field(ay, width);
    constexpr Long WidestAtOnce = 12;
    if (width <= WidestAtOnce) {
        run.Put(6 + 4 * width, (head << (2 * width) | control) << (2 * width) | anchor);
    } else if (width <= MaxEdgeBits) {
        run.Put(6 + 2 * width, head << (2 * width) | control);
        run.Put(2 * width, anchor);
    } else {
        return false;
    }
    pen.X = edge.AnchorX;
    pen.Y = edge.AnchorY;
    return true;
}

Long Middle(Long a, Long b) {
    return static_cast<Long>((std::int64_t{a} + b) / 2);
}

/// A curve too long for one record, as two halves, each again in halves as long as it must be.
void SaveLongCurve(const clsSWFTShapeCurveEdge& edge, ShapePen& pen) {
    {
        mdlSWFTag::BitRun run(LongestEdge);
        if (SaveEdge(edge, pen, run)) return;
    }
    const Long startX = Middle(pen.X, edge.ControlX);
    const Long startY = Middle(pen.Y, edge.ControlY);
    const Long endX = Middle(edge.ControlX, edge.AnchorX);
    const Long endY = Middle(edge.ControlY, edge.AnchorY);
    SaveLongCurve({startX, startY, Middle(startX, endX), Middle(startY, endY)}, pen);
    SaveLongCurve({endX, endY, edge.AnchorX, edge.AnchorY}, pen);
}

/// A curve too long for one record, its distances cut: both states of a morph need as many edges.
void SaveCutCurve(const clsSWFTShapeCurveEdge& edge, ShapePen& pen) {
    const auto cut = [](Long from, Long to) {
        return from + std::clamp<Long>(Delta(to, from), -0x10000, 0xFFFF);
    };
    clsSWFTShapeCurveEdge shorter;
    shorter.ControlX = cut(pen.X, edge.ControlX);
    shorter.ControlY = cut(pen.Y, edge.ControlY);
    shorter.AnchorX = cut(shorter.ControlX, edge.AnchorX);
    shorter.AnchorY = cut(shorter.ControlY, edge.AnchorY);
    mdlSWFTag::BitRun run(LongestEdge);
    SaveEdge(shorter, pen, run);
}

/// Writes edges up to the first curve that is too long, and returns how many.
std::size_t SaveBlock(std::span<const clsSWFTShapeRecord> edges, ShapePen& pen) {
    mdlSWFTag::BitRun run(edges.size() * LongestEdge);
    ShapePen at = pen;
    std::size_t done = 0;
    for (; done < edges.size(); ++done) {
        if (const auto* line = std::get_if<clsSWFTShapeStraightEdge>(&edges[done]))
            SaveEdge(*line, at, run);
        else if (!SaveEdge(*std::get_if<clsSWFTShapeCurveEdge>(&edges[done]), at, run))
            break;
    }
    pen = at;
    return done;
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
    // Room is made for a block at a time.
    constexpr std::size_t Block = 1024;
    while (!edges.empty()) {
        const auto block = edges.first(std::min(Block, edges.size()));
        const std::size_t done = SaveBlock(block, pen);
        edges = edges.subspan(done);
        if (done == block.size()) continue;
        const auto& curve = std::get<clsSWFTShapeCurveEdge>(edges.front());
        if (pen.Version < 0)
            SaveCutCurve(curve, pen);
        else
            SaveLongCurve(curve, pen);
        edges = edges.subspan(1);
    }
}

}  // namespace tamber

#include "swf/tags/clsSWFTShapeRecord.h"

#include <algorithm>

#include "swf/mdlSWFTag.h"
#include "swf/tags/ShapeEdge.h"

namespace tamber {

namespace {

Long Middle(Long a, Long b) {
    return static_cast<Long>((std::int64_t{a} + b) / 2);
}

/// A curve too long for one record, as two halves, each again in halves as long as it must be.
void SaveLongCurve(const clsSWFTShapeCurveEdge& edge, ShapePen& pen) {
    {
        mdlSWFTag::StreamRun run(shape_edge::LongestRecord);
        if (shape_edge::Save(edge, pen, run)) return;
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
        return from + std::clamp(shape_edge::Delta(to, from), shape_edge::FarthestBack,
                                 shape_edge::Farthest);
    };
    clsSWFTShapeCurveEdge shorter;
    shorter.ControlX = cut(pen.X, edge.ControlX);
    shorter.ControlY = cut(pen.Y, edge.ControlY);
    shorter.AnchorX = cut(shorter.ControlX, edge.AnchorX);
    shorter.AnchorY = cut(shorter.ControlY, edge.AnchorY);
    mdlSWFTag::StreamRun run(shape_edge::LongestRecord);
    shape_edge::Save(shorter, pen, run);
}

/// Writes edges up to the first curve that is too long, and returns how many.
std::size_t SaveBlock(std::span<const clsSWFTShapeRecord> edges, ShapePen& pen) {
    mdlSWFTag::StreamRun run(edges.size() * shape_edge::LongestRecord);
    ShapePen at = pen;
    std::size_t done = 0;
    for (; done < edges.size(); ++done) {
        if (const auto* line = std::get_if<clsSWFTShapeStraightEdge>(&edges[done]))
            shape_edge::Save(*line, at, run);
        else if (!shape_edge::Save(*std::get_if<clsSWFTShapeCurveEdge>(&edges[done]), at, run))
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

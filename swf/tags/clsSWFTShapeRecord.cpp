#include "swf/tags/clsSWFTShapeRecord.h"

#include <algorithm>

namespace tamber {

namespace {

constexpr Long MinEdgeBits = 3;
constexpr Long MaxEdgeBits = 17;

Long ClampDelta(Long delta, Long width) {
    if (width < MaxEdgeBits) return delta;
    return std::clamp(delta, -0x10000, 0xFFFF);
}

/// Difference of two places, wrapped as the 32-bit stream holds it.
Long Delta(Long to, Long from) {
    return static_cast<Long>(static_cast<std::uint32_t>(to) - static_cast<std::uint32_t>(from));
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
    mdlSWFTag::SetBits(pen.LineBits + 2 * pen.FillBits, 0);
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

void clsSWFTShapeStraightEdge::Save(ShapePen& pen) const {
    const Long dx = Delta(DrawX, pen.X);
    const Long dy = Delta(DrawY, pen.Y);
    const Long width =
        std::clamp(std::max(mdlSWFTag::BitLength(dx, false), mdlSWFTag::BitLength(dy, false)),
                   MinEdgeBits, MaxEdgeBits);
    mdlSWFTag::SetBits(2, 3);
    mdlSWFTag::SetBits(4, width - 2);
    if (dx != 0 && dy != 0) {
        mdlSWFTag::SetBits(1, 1);
        mdlSWFTag::SetBits(width, ClampDelta(dx, width));
        mdlSWFTag::SetBits(width, ClampDelta(dy, width));
    } else {
        const bool vertical = dy != 0;
        mdlSWFTag::SetBits(2, vertical ? 1 : 0);
        mdlSWFTag::SetBits(width, ClampDelta(vertical ? dy : dx, width));
    }
    pen.X = DrawX;
    pen.Y = DrawY;
}

void clsSWFTShapeCurveEdge::Save(ShapePen& pen) const {
    const Long deltas[] = {Delta(ControlX, pen.X), Delta(ControlY, pen.Y), Delta(AnchorX, ControlX),
                           Delta(AnchorY, ControlY)};
    Long width = MinEdgeBits;
    for (const Long delta : deltas) width = std::max(width, mdlSWFTag::BitLength(delta, false));
    mdlSWFTag::SetBits(2, 2);
    mdlSWFTag::SetBits(4, width - 2);
    for (const Long delta : deltas) mdlSWFTag::SetBits(width, delta);
    pen.X = AnchorX;
    pen.Y = AnchorY;
}

}  // namespace tamber

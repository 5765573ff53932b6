#include "swf/tags/clsSWFTagDefineShape.h"

#include "swf/mdlSWFTag.h"

namespace tamber {

namespace {
void SaveBounds(const SwfRect& bounds) {
    mdlSWFTag::SetRect(bounds.xMin, bounds.xMax, bounds.yMin, bounds.yMax);
}
}  // namespace

Long clsSWFTagDefineShape::AddNewFillStyle(clsSWFTFillStyle fill) {
    colFillStyles->push_back(std::move(fill));
    return static_cast<Long>(colFillStyles->size());
}

Long clsSWFTagDefineShape::AddNewLineStyle(Long width, Long color) {
    clsSWFTLineStyle line;
    line.Width = width;
    line.Color = color;
    return AddNewLineStyle2(std::move(line));
}

Long clsSWFTagDefineShape::AddNewLineStyle2(clsSWFTLineStyle line) {
    colLineStyles->push_back(std::move(line));
    return static_cast<Long>(colLineStyles->size());
}

Long clsSWFTagDefineShape::AddBitmapFill(Long bitmapID, Long width, Long height) {
    auto fill = std::make_shared<clsSWFTFillStyleBitmap>();
    fill->BitmapID = bitmapID;
    fill->Width = width;
    fill->height = height;
    return AddNewFillStyle(clsSWFTFillStyle(std::move(fill)));
}

Long clsSWFTagDefineShape::TagNum() const {
    switch (Ver) {
        case -2:
            return TagCode::DefineMorphShape2;
        case -1:
            return TagCode::DefineMorphShape;
        case 1:
            return TagCode::DefineShape;
        case 2:
            return TagCode::DefineShape2;
        case 3:
            return TagCode::DefineShape3;
        case 4:
            return TagCode::DefineShape4;
        default:
            return -1;
    }
}

void clsSWFTagDefineShape::SaveStrokeFlags() const {
    mdlSWFTag::SetAlign();
    mdlSWFTag::SetBits(6, 0);
    mdlSWFTag::SetBits(1, blUsesNonScalingStrokes ? 1 : 0);
    mdlSWFTag::SetBits(1, blUsesScalingStrokes ? 1 : 0);
}

void clsSWFTagDefineShape::SaveShapeStyles() const {
    if (Ver == 4) {
        SaveBounds(ShapeRecords->GetEdgeBounds());
        SaveStrokeFlags();
    }
    SaveFillStyles(*colFillStyles, nullptr);
    SaveLineStyles(*colLineStyles, nullptr, Ver);
}

std::size_t clsSWFTagDefineShape::SaveMorphStyles() const {
    SaveBounds(ShapeRecords2->GetBounds(false));
    if (Ver == -2) {
        SaveBounds(ShapeRecords->GetEdgeBounds());
        SaveBounds(ShapeRecords2->GetEdgeBounds());
        SaveStrokeFlags();
    }
    mdlSWFTag::SetBytes(4, 0);
    const std::size_t offsetEnd = mdlSWFTag::swfBytePos();
    SaveFillStyles(*colFillStyles, colFillStyles2.get());
    SaveLineStyles(*colLineStyles, colLineStyles2.get(), Ver);
    return offsetEnd;
}

void clsSWFTagDefineShape::Save() {
    if (PlaceCnt == 0) return;
    const std::size_t body = mdlSWFTag::BeginTag(TagNum());
    mdlSWFTag::SetBytes(2, ID);
    SaveBounds(ShapeRecords->GetBounds(false));
    std::size_t offsetEnd = 0;
    if (IsMorph())
        offsetEnd = SaveMorphStyles();
    else
        SaveShapeStyles();
    mdlSWFTag::SetAlign();
    const Long fillBits = StyleIndexBits(colFillStyles->size());
    const Long lineBits = StyleIndexBits(colLineStyles->size());
    ShapeRecords->Save(fillBits, lineBits, Ver);
    if (IsMorph()) {
        mdlSWFTag::SetAlign();
        mdlSWFTag::PatchBytes(offsetEnd - 4, 4,
                              static_cast<Long>(mdlSWFTag::swfBytePos() - offsetEnd));
        ShapeRecords2->Save(fillBits, lineBits, ShapePen::MorphEnd);
    }
    mdlSWFTag::EndTag(body);
}

}  // namespace tamber

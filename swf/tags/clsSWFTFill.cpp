#include "swf/tags/clsSWFTFill.h"

#include "swf/mdlSWFTag.h"

#include <algorithm>

namespace tamber {

namespace {
constexpr std::size_t GradientLimit = 8;
constexpr std::size_t GradientLimitVersion8 = 15;
}  // namespace

void FillMatrix::Save() const {
    if (blMatrix2) {
        mdlSWFTag::SetMatrix(Matrix2);
        return;
    }
    mdlSWFTag::SetMatrixTransform(GradScaleX, GradScaleY, GradAngle, {GradCenterX, GradCenterY},
                                  {0, 0}, skewX2, skewY2);
}

void clsSWFTFillSolid::Save(const clsSWFTFill* other) const {
    mdlSWFTag::SetBytes(4, SolidColor);
    if (const auto* end = dynamic_cast<const clsSWFTFillSolid*>(other))
        mdlSWFTag::SetBytes(4, end->SolidColor);
}

std::size_t clsSWFTFillLinearRadial::EntryCount() const {
    const std::size_t limit = mdlSWFTag::swfVersion() > 7 ? GradientLimitVersion8 : GradientLimit;
    return std::min({limit, ColorTbl.size(), ColorPosTbl.size()});
}

void clsSWFTFillLinearRadial::SaveEntry(std::size_t index) const {
    const bool held = index < ColorTbl.size() && index < ColorPosTbl.size();
    mdlSWFTag::SetBytes(1, held ? ColorPosTbl[index] : 255);
    mdlSWFTag::SetBytes(4, held ? ColorTbl[index] : 0);
}

void clsSWFTFillLinearRadial::SaveMorph(const clsSWFTFillLinearRadial& other) const {
    inMatrix.Save();
    other.inMatrix.Save();
    mdlSWFTag::SetBytes(1, static_cast<Long>(EntryCount()));
    for (std::size_t i = 0; i < EntryCount(); ++i) {
        SaveEntry(i);
        other.SaveEntry(i);
    }
}

void clsSWFTFillLinearRadial::Save(const clsSWFTFill* other) const {
    if (const auto* end = dynamic_cast<const clsSWFTFillLinearRadial*>(other)) {
        SaveMorph(*end);
        return;
    }
    inMatrix.Save();
    const auto count = static_cast<Long>(EntryCount());
    mdlSWFTag::SetAlign();
    if (mdlSWFTag::swfVersion() > 7) {
        mdlSWFTag::SetBits(2, spreadMode);
        mdlSWFTag::SetBits(2, interpolationMode);
        mdlSWFTag::SetBits(4, count);
    } else {
        mdlSWFTag::SetBytes(1, count);
    }
    for (std::size_t i = 0; i < EntryCount(); ++i) SaveEntry(i);
}

void clsSWFTFillFocalRadial::Save(const clsSWFTFill* other) const {
    clsSWFTFillLinearRadial::Save(other);
    mdlSWFTag::SetBytes(2, FocalPoint);
    if (const auto* end = dynamic_cast<const clsSWFTFillFocalRadial*>(other))
        mdlSWFTag::SetBytes(2, end->FocalPoint);
}

void clsSWFTFillBmpClippedTiled::Save(const clsSWFTFill* other) const {
    mdlSWFTag::SetBytes(2, Bitmap ? Bitmap->ID : 0);
    inMatrix.Save();
    if (const auto* end = dynamic_cast<const clsSWFTFillBmpClippedTiled*>(other))
        end->inMatrix.Save();
}

void clsSWFTFillStyleBitmap::Save(const clsSWFTFill*) const {
    // Below version 8 one twip more keeps the bitmap's edge clean in the players of that time.
    const Long overlap = mdlSWFTag::swfVersion() >= 8 ? 0 : 1;
    mdlSWFTag::SetBytes(2, BitmapID);
    mdlSWFTag::SetMatrixTransform(20.0f, 20.0f, 0, {-20 * Width - overlap, -20 * height - overlap},
                                  {0, 0}, 0, 0);
}

}  // namespace tamber

#pragma once

#include "swf/tags/clsSWFTagDefineShape.h"
#include "vector/clsVector.h"

namespace tamber::test {

/// The indices of each shape must lie within its tables.
inline void CheckArtwork(const clsVectorData& artwork) {
    for (const auto& piece : artwork.colShapeData) {
        const auto fills = static_cast<Long>(piece->colFillStyles->size());
        const auto lines = static_cast<Long>(piece->colLineStyles->size());
        for (const clsSWFTShapeRecord& record : piece->inSWFTShapeRecords->colShapeRecords)
            if (const auto* change = std::get_if<std::shared_ptr<clsSWFTShapeStyleChange>>(&record))
                if ((*change)->FillStyle0 > fills || (*change)->FillStyle1 > fills ||
                    (*change)->LineStyle > lines)
                    __builtin_trap();
    }
}

/// Writes each shape of an artwork as a tag, and as it is when deformed.
inline void SaveArtwork(const clsVector& vector) {
    const CornerPoints corners{{{0, 0}, {900, 100}, {1100, 1300}, {-50, 700}}};
    const auto deformed = vector.inVector->FreeTransform(1000, 1000, corners);
    mdlSWFTag::InitBuffer();
    for (const auto& artwork : {vector.inVector, deformed})
        for (const auto& piece : artwork->colShapeData) {
            clsSWFTagDefineShape tag;
            tag.Ver = piece->Ver;
            tag.PlaceCnt = 1;
            tag.colFillStyles = piece->colFillStyles;
            tag.colLineStyles = piece->colLineStyles;
            tag.ShapeRecords = piece->inSWFTShapeRecords;
            tag.Save();
        }
}

/// What a reader has made of `size` bytes. Writing takes a buffer of a megabyte, so one size in
/// eight is written.
inline void UseArtwork(const clsVector& vector, std::size_t size) {
    CheckArtwork(*vector.inVector);
    if (size % 8 == 0) SaveArtwork(vector);
}

}  // namespace tamber::test

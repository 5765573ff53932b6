#include "vector/MorphCheck.h"

#include <algorithm>

namespace tamber {

namespace {

constexpr Long LineKindVersion = 8;

bool SameKind(const clsSWFTFillStyle& a, const clsSWFTFillStyle& b) {
    return a.FillType() == b.FillType();
}

bool SameKind(const clsSWFTLineStyle& a, const clsSWFTLineStyle& b) {
    if (!a.inFillStyle || !b.inFillStyle) return !a.inFillStyle == !b.inFillStyle;
    return SameKind(*a.inFillStyle, *b.inFillStyle);
}

template <class List>
bool SameKinds(const List& a, const List& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const auto& x, const auto& y) { return SameKind(x, y); });
}

Long CheckRecords(const clsSWFTShapeRecord& a, const clsSWFTShapeRecord& b) {
    if (RecordType(a) != RecordType(b)) return MorphCheck::RecordKind;
    const auto* start = std::get_if<std::shared_ptr<clsSWFTShapeStyleChange>>(&a);
    if (start == nullptr) return MorphCheck::Possible;
    const auto& end = std::get<std::shared_ptr<clsSWFTShapeStyleChange>>(b);
    if ((*start)->FillStyle0 != end->FillStyle0 || (*start)->FillStyle1 != end->FillStyle1)
        return MorphCheck::FillIndex;
    return (*start)->LineStyle != end->LineStyle ? MorphCheck::LineIndex : MorphCheck::Possible;
}

Long CheckStyles(const clsVectorData2& a, const clsVectorData2& b, Long version) {
    if (a.colFillStyles->size() != b.colFillStyles->size()) return MorphCheck::FillCount;
    if (a.colLineStyles->size() != b.colLineStyles->size()) return MorphCheck::LineCount;
    if (!SameKinds(*a.colFillStyles, *b.colFillStyles)) return MorphCheck::FillKind;
    if (version >= LineKindVersion && a.Ver >= 4 && !SameKinds(*a.colLineStyles, *b.colLineStyles))
        return MorphCheck::LineKind;
    return MorphCheck::Possible;
}

Long CheckShapes(const clsVectorData2& a, const clsVectorData2& b, Long version) {
    const auto& start = a.inSWFTShapeRecords->colShapeRecords;
    const auto& end = b.inSWFTShapeRecords->colShapeRecords;
    if (start.size() != end.size()) return MorphCheck::RecordCount;
    if (const Long result = CheckStyles(a, b, version)) return result;
    for (std::size_t i = 0; i < start.size(); ++i)
        if (const Long result = CheckRecords(start[i], end[i])) return result;
    return MorphCheck::Possible;
}

}  // namespace

Long CheckMorph(const clsVectorData& start, const clsVectorData& end, Long version) {
    if (start.colBitmap.size() != end.colBitmap.size()) return MorphCheck::FillKind;
    if (start.colShapeData.size() != end.colShapeData.size()) return MorphCheck::ShapeCount;
    for (std::size_t i = 0; i < start.colShapeData.size(); ++i)
        if (const Long result = CheckShapes(*start.colShapeData[i], *end.colShapeData[i], version))
            return result;
    return MorphCheck::Possible;
}

StringView MorphCheckText(Long result) {
    switch (result) {
        case MorphCheck::Possible:
            return u"モーフィング可能";
        case MorphCheck::ShapeCount:
            return u"Error：パスの数が違います";
        case MorphCheck::RecordCount:
            return u"Error：アンカーの数が違います";
        case MorphCheck::RecordKind:
            return u"Error：アンカーの種類が違います";
        case MorphCheck::FillCount:
            return u"Error：塗りの数が違います";
        case MorphCheck::FillKind:
        case MorphCheck::FillIndex:
            return u"Error：塗りの種類が違います";
        case MorphCheck::LineCount:
            return u"Error：線の数が違います";
        default:
            return u"Error：線の塗りの種類が違います";
    }
}

}  // namespace tamber

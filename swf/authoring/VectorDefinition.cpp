#include "swf/authoring/VectorDefinition.h"

#include <unordered_map>

#include "platform/text.h"
#include "platform/twips.h"
#include "vector/MorphCheck.h"

namespace tamber {

namespace {

constexpr Long PlainShapeVersion = 3;

using BitmapMap = std::unordered_map<const BitmapReference*, std::shared_ptr<clsVectorBitmap>>;

/// Bitmaps of an artwork for one definition, with identifiers of their own.
class DefinitionBitmaps {
public:
    DefinitionBitmaps(const DefinitionPlace& place, const clsVectorData& artwork) {
        for (const auto& bitmap : artwork.colBitmap) {
            auto copy = std::make_shared<clsVectorBitmap>(*bitmap);
            copy->ID = place.Numbers.AddDefinition(copy);
            // Fills refer to it by identifier, so it stands before every use.
            place.Tags.AddTag(1, copy, true);
            map_[bitmap.get()] = std::move(copy);
        }
    }

    /// The shape with its bitmap fills on these bitmaps.
    std::shared_ptr<clsVectorData2> Bind(std::shared_ptr<clsVectorData2> shape) const {
        if (map_.empty()) return shape;
        auto bound = std::make_shared<clsVectorData2>(*shape);
        bound->colFillStyles = std::make_shared<FillStyleList>(*shape->colFillStyles);
        bound->colLineStyles = std::make_shared<LineStyleList>(*shape->colLineStyles);
        bound->inSWFTShapeRecords =
            std::make_shared<clsSWFTShapeRecords>(*shape->inSWFTShapeRecords);
        BindFills(*bound->colFillStyles);
        BindLines(*bound->colLineStyles);
        for (clsSWFTShapeRecord& record : bound->inSWFTShapeRecords->colShapeRecords)
            BindRecord(record);
        return bound;
    }

private:
    void BindFill(clsSWFTFillStyle& fill) const {
        const auto* old = fill.StyleAs<clsSWFTFillBmpClippedTiled>();
        if (old == nullptr) return;
        const auto found = map_.find(old->Bitmap.get());
        if (found == map_.end()) return;
        fill = fill.Copy();
        fill.StyleAs<clsSWFTFillBmpClippedTiled>()->Bitmap = found->second;
    }
    void BindFills(FillStyleList& fills) const {
        for (clsSWFTFillStyle& fill : fills) BindFill(fill);
    }
    void BindLines(LineStyleList& lines) const {
        for (clsSWFTLineStyle& line : lines) {
            if (!line.inFillStyle) continue;
            line.inFillStyle = std::make_shared<clsSWFTFillStyle>(*line.inFillStyle);
            BindFill(*line.inFillStyle);
        }
    }
    void BindRecord(clsSWFTShapeRecord& record) const {
        auto* change = std::get_if<std::shared_ptr<clsSWFTShapeStyleChange>>(&record);
        if (change == nullptr || !(*change)->hasNewStyles()) return;
        *change = std::make_shared<clsSWFTShapeStyleChange>(**change);
        BindFills((*change)->colFillStyles);
        BindLines((*change)->colLineStyles);
    }

    BitmapMap map_;
};

/// Definitions of one symbol in one form.
class VectorDefinition {
public:
    VectorDefinition(const DefinitionPlace& place, const clsSymbolData& symbol, Long form)
        : place_(place),
          symbol_(symbol),
          form_(form),
          record_(*symbol.Property<clsPropertyVector>()),
          bitmaps_(place, *record_.inVector) {}

    /// The last identifier.
    Long Run() {
        const clsPropertyVector* end = MorphEnd();
        if (form_ == VectorForm::Plain && record_.blDivide)
            DefinePieces(end);
        else if (end != nullptr)
            Add(place_.Numbers.GetNewMorphShape(*bitmaps_.Bind(record_.inVector2(false, version_)),
                                                *bitmaps_.Bind(end->inVector2(false, version_))));
        else
            AddShape(record_.inVector2(form_ != VectorForm::Clip, version_));
        return last_;
    }

private:
    /// The record of the morph's target; null without a morph, and, with a message, when the pair
    /// cannot morph.
    const clsPropertyVector* MorphEnd() const {
        const auto target = record_.MorphSymbol();
        if (!target || form_ == VectorForm::MorphStart) return nullptr;
        const auto* end = target->Property<clsPropertyVector>();
        if (end != nullptr && record_.CheckMorph(*end, version_) == MorphCheck::Possible)
            return end;
        Notice notice;
        notice.Text = u"モーフィングできませんでした。[ID：" + ToText(symbol_.ID) + u"→ID：" +
                      ToText(target->ID) + u"]";
        notice.Title = u"モーフィング正当性チェック";
        notice.Severity = MessageIcon::Error;
        notice.Place.SymbolID = symbol_.ID;
        place_.Told.push_back(std::move(notice));
        return nullptr;
    }

    void DefinePieces(const clsPropertyVector* end) {
        for (Long i = 1; i <= record_.ShapeCount(); ++i) {
            auto piece = record_.SetPrmVector2(*record_.inVector->ShapeDataTbl(i), version_);
            if (end == nullptr)
                AddShape(std::move(piece));
            else
                Add(place_.Numbers.GetNewMorphShape(
                    *bitmaps_.Bind(std::move(piece)),
                    *bitmaps_.Bind(end->SetPrmVector2(*end->inVector->ShapeDataTbl(i), version_))));
        }
    }

    void AddShape(std::shared_ptr<clsVectorData2> shape) {
        Add(place_.Numbers.GetNewShape(PlainShapeVersion, *bitmaps_.Bind(std::move(shape))));
    }

    void Add(std::shared_ptr<clsSWFTagDefineShape> tag) {
        last_ = tag->ID;
        place_.Tags.AddTag(place_.Frame, std::move(tag), true);
    }

    DefinitionPlace place_;
    const clsSymbolData& symbol_;
    Long form_;
    Long version_ = place_.Tags.Ver;
    Long last_ = 0;
    const clsPropertyVector& record_;
    DefinitionBitmaps bitmaps_;
};

/// The drawing of a record as an element deforms it.
std::shared_ptr<const clsVectorData> Deformed(const clsPropertyVector& record,
                                              const clsObjVector* element) {
    if (element == nullptr || !element->blFreeTransEx() || !record.inVector) return record.inVector;
    return record.inVector->FreeTransform(record.Width * TwipsPerPixel,
                                          record.height * TwipsPerPixel,
                                          CornersOf(element->FreeTransPoints));
}

std::shared_ptr<clsSymbolData> TemporarySymbol(const clsSymbolData& symbol,
                                               const clsObjVector* element) {
    const auto& record = *symbol.Property<clsPropertyVector>();
    auto result = std::make_shared<clsSymbolData>(KindVector);
    result->ID = symbol.ID;
    auto& copy = *result->Property<clsPropertyVector>();
    record.CopyToLineOption(copy);
    copy.Width = record.Width;
    copy.height = record.height;
    copy.inVector = Deformed(record, element);
    return result;
}

}  // namespace

bool HasShapes(const clsPropertyVector& record) {
    return record.inVector && !record.inVector->colShapeData.empty();
}

bool HasFocalGradient(const clsPropertyVector& record) {
    if (!record.inVector) return false;
    for (const auto& shape : record.inVector->colShapeData)
        for (const clsSWFTFillStyle& fill : *shape->colFillStyles)
            if (fill.FillMode() == clsSWFTFillStyle::Focal) return true;
    return false;
}

Long DefineVector(const DefinitionPlace& place, const clsSymbolData& symbol, Long form) {
    if (!HasShapes(*symbol.Property<clsPropertyVector>())) return 0;
    return VectorDefinition(place, symbol, form).Run();
}

DeformedVector DeformSymbol(const clsSymbolData& symbol, const clsObjVector* start,
                            const clsObjVector* end) {
    DeformedVector result;
    result.Start = TemporarySymbol(symbol, start);
    if (end == nullptr) return result;
    const auto target = symbol.Property<clsPropertyVector>()->MorphSymbol();
    const bool ownTarget = target && target->eType() == KindVector;
    result.End = TemporarySymbol(ownTarget ? *target : symbol, end);
    result.Start->Property<clsPropertyVector>()->MorphSymbol(result.End);
    return result;
}

}  // namespace tamber

#include "swf/authoring/FitText.h"

#include <cmath>
#include <numbers>
#include <unordered_map>

#include "document/elements/clsLayerObjElement.h"
#include "document/records/clsPropertySprite.h"
#include "document/records/clsPropertyVector.h"
#include "document/symbols/clsLayer.h"
#include "platform/twips.h"
#include "swf/authoring/OutlinePath.h"
#include "swf/authoring/TextDefinition.h"

namespace tamber {

namespace {

/// Values of `eBasePos`: which part of the characters lies on the outline.
constexpr Long BaseTop = 0;
constexpr Long BaseBottom = 2;

const clsVectorData2* OutlineOf(const clsPropertyText& text) {
    const auto shape = text.FitShapeSymbol();
    const auto* drawing = shape ? shape->Property<clsPropertyVector>() : nullptr;
    if (drawing == nullptr || !drawing->inVector || drawing->inVector->colShapeData.empty())
        return nullptr;
    return drawing->inVector->ShapeDataTbl(1).get();
}

String OneLine(StringView text) {
    String line(text);
    std::erase_if(line, [](char16_t c) { return c == u'\r' || c == u'\n'; });
    return line;
}

/// Sets the characters of one text along one outline.
class FitText {
public:
    FitText(const clsPropertyText& text, const clsFontObject& font)
        : text_(text),
          path_(*OutlineOf(text)->inSWFTShapeRecords, text.FitShapeScaleX, text.FitShapeScaleY),
          line_(OneLine(text.InitialText)),
          layout_(line_, font, FormatOf(text)) {}

    std::shared_ptr<clsSymbolData> Run() {
        const auto& glyphs = layout_.Lines().front().Glyphs;
        const double space = SpaceBetween();
        double way = StartOfLine();
        for (std::size_t i = 0; i < glyphs.size(); ++i) {
            const double advance = glyphs[i].Advance / double{TwipsPerPixel};
            PlaceCharacter(line_[i], way + advance / 2, advance);
            way += advance + space;
        }
        return sprite_;
    }

private:
    /// Pixels between two characters: so many that the text fills the way, or the text's own.
    double SpaceBetween() const {
        const auto& glyphs = layout_.Lines().front().Glyphs;
        if (!text_.blFitEven || glyphs.size() < 2) return text_.FontCharSpace;
        double widths = 0;
        for (const TextLayout::Glyph& glyph : glyphs)
            widths += glyph.Advance / double{TwipsPerPixel};
        return (path_.Length() - widths) / static_cast<double>(glyphs.size() - 1);
    }

    double StartOfLine() const {
        if (text_.blFitEven) return 0;
        const double room = path_.Length() - layout_.Width() / double{TwipsPerPixel};
        if (text_.Alignment == clsSWFTagDefineText::Right) return room;
        return text_.Alignment == clsSWFTagDefineText::Centre ? room / 2 : 0;
    }

    OutlinePath::Place PlaceAt(double way) const {
        if (!text_.blFitOpposite) return path_.At(way);
        OutlinePath::Place place = path_.At(path_.Length() - way);
        place.Angle += place.Angle > 0 ? -180 : 180;
        return place;
    }

    void PlaceCharacter(char16_t character, double way, double advance) {
        const OutlinePath::Place place = PlaceAt(way);
        const double shift = text_.eBasePos == BaseTop      ? text_.FontSize / 2.0
                             : text_.eBasePos == BaseBottom ? -text_.FontSize / 2.0
                                                            : 0;
        const double angle = place.Angle * std::numbers::pi / 180;
        auto layer = std::make_shared<clsLayer>();
        layer->SymbolData(SymbolOf(character));
        layer->LayerName = u"dummy";
        Long index = 0;
        layer->Add(1, nullptr, index);
        clsLayerObjElement& element = *layer->Object(index)->Placement();
        element.X(static_cast<Single>(place.Point.X - std::sin(angle) * shift));
        element.Y(static_cast<Single>(place.Point.Y + std::cos(angle) * shift));
        element.OffsetX(static_cast<Single>(advance / 2));
        element.OffsetY(static_cast<Single>(text_.FontSize / 2.0));
        if (text_.blFitAngle) element.Angle(static_cast<Single>(place.Angle));
        sprite_->Property<clsPropertySprite>()->colLayer->Add(std::move(layer));
    }

    /// Equal characters share a symbol.
    std::shared_ptr<clsSymbolData> SymbolOf(char16_t character) {
        auto& symbol = symbols_[character];
        if (symbol) return symbol;
        symbol = std::make_shared<clsSymbolData>(KindText);
        auto& record = *symbol->Property<clsPropertyText>();
        text_.CopyTo(record);
        record.InitialText = String(1, character);
        record.FitShapeSymbol(nullptr);
        record.Alignment = clsSWFTagDefineText::Left;
        return symbol;
    }

    const clsPropertyText& text_;
    OutlinePath path_;
    String line_;
    TextLayout layout_;
    std::unordered_map<char16_t, std::shared_ptr<clsSymbolData>> symbols_;
    std::shared_ptr<clsSymbolData> sprite_ = std::make_shared<clsSymbolData>(KindSprite);
};

}  // namespace

bool FollowsOutline(const clsSymbolData& symbol) {
    const auto* text = symbol.Property<clsPropertyText>();
    return text != nullptr && !text->blDynamic && !clsFontAdmin::IsDeviceFont(text->FontName) &&
           OutlineOf(*text) != nullptr;
}

std::shared_ptr<clsSymbolData> FitTextSprite(const clsSymbolData& symbol,
                                             const clsFontAdmin& fonts) {
    const auto& text = *symbol.Property<clsPropertyText>();
    const Long index = fonts.GetIndex(FontKeyOf(text));
    return FitText(text, *fonts.FontObject(index)).Run();
}

}  // namespace tamber

#pragma once

#include <memory>

#include "document/records/FieldRecord.h"

namespace tamber {

class clsSymbolData;

/// A text, static or a field.
class clsPropertyText : public FieldRecord<clsPropertyText> {
public:
    String InitialText;
    /// The text with definitions applied.
    String DefineText;
    /// A name that begins with "_" stands for a device font.
    String FontName;
    Long Width = 0;
    Long height = 0;
    Long FontSize = 0;
    Single FontLeading = 0;
    Single FontCharSpace = 0;
    bool FontBold = false;
    bool FontItalic = false;
    Byte FontColorRed = 0;
    Byte FontColorGreen = 0;
    Byte FontColorBlue = 0;
    Long Alignment = 0;
    bool blAutoSize = true;
    /// A text field rather than static text. The next eight are a field's own.
    bool blDynamic = false;
    bool blWordWrap = false;
    bool blInput = false;
    bool blSelect = false;
    bool blMultiLine = false;
    bool blBorder = false;
    bool blPassword = false;
    bool blHtml = false;
    String VariableName;
    /// Anti-aliased text.
    bool blFlashType = false;
    Long Thickness = 0;
    Long Sharpness = 0;
    Single FitShapeScaleX = 1;
    Single FitShapeScaleY = 1;
    /// Characters turn with the outline.
    bool blFitAngle = true;
    bool blFitEven = false;
    bool blFitOpposite = false;
    Long eBasePos = 1;

    Long FontColor() const { return ColorLong(FontColorRed, FontColorGreen, FontColorBlue); }
    /// A vector whose outline the text follows, or null.
    std::shared_ptr<clsSymbolData> FitShapeSymbol() const { return fitShape_.lock(); }
    void FitShapeSymbol(const std::shared_ptr<clsSymbolData>& symbol) { fitShape_ = symbol; }
    Long FitShapeIndex() const;
    Long eType() const override { return KindText; }
    std::optional<String> Name() const override;
    String OptionText() const override;
    bool CanExport() const override { return blDynamic || !FitShapeSymbol(); }
    bool HasInstanceName() const override { return blDynamic; }
    bool TakesEffects() const override { return !blDynamic && !FontName.starts_with(u'_'); }
    Long PixelWidth() const override { return Width; }
    Long PixelHeight() const override { return height; }

    static constexpr auto Fields() {
        using T = clsPropertyText;
        constexpr FromVersion WithFitShape(0x60300);
        return std::tuple{
            Field(u"InitialText", &T::InitialText),
            Field(u"DefineText", &T::DefineText),
            Field(u"FontName", &T::FontName),
            Field(u"Width", &T::Width),
            Field(u"height", &T::height),
            Field(u"FontSize", &T::FontSize),
            Field(u"FontLeading", &T::FontLeading),
            Field(u"FontCharSpace", &T::FontCharSpace),
            Field(u"FontBold", &T::FontBold),
            Field(u"FontItalic", &T::FontItalic),
            Field(u"FontColorRed", &T::FontColorRed),
            Field(u"FontColorGreen", &T::FontColorGreen),
            Field(u"FontColorBlue", &T::FontColorBlue),
            Field(u"Alignment", &T::Alignment),
            Field(u"blAutoSize", &T::blAutoSize),
            Field(u"blDynamic", &T::blDynamic),
            Group(IfOn{&T::blDynamic}, Field(u"blWordWrap", &T::blWordWrap),
                  Field(u"blInput", &T::blInput), Field(u"blSelect", &T::blSelect),
                  Field(u"blMultiLine", &T::blMultiLine), Field(u"blBorder", &T::blBorder),
                  Field(u"blPassword", &T::blPassword), Field(u"blHtml", &T::blHtml),
                  Field(u"VariableName", &T::VariableName)),
            Group(IfFilled(), Field(u"blFlashType", &T::blFlashType),
                  Field(u"Thickness", &T::Thickness), Field(u"Sharpness", &T::Sharpness)),
            Group(WithFitShape, Field(u"FitShapeScaleX", &T::FitShapeScaleX),
                  Field(u"FitShapeScaleY", &T::FitShapeScaleY),
                  Field(u"blFitAngle", &T::blFitAngle), Field(u"blFitEven", &T::blFitEven),
                  Field(u"blFitOpposite", &T::blFitOpposite), Field(u"eBasePos", &T::eBasePos)),
        };
    }

private:
    std::weak_ptr<clsSymbolData> fitShape_;
};

}  // namespace tamber

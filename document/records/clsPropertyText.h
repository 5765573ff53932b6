#pragma once

#include <memory>

#include "document/symbols/clsPropertyData.h"

namespace tamber {

class clsSymbolData;

/// A text, static or a field.
class clsPropertyText : public clsPropertyData {
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
    void Load(clsCSV& csv) override;
    void Save(clsCSV& csv) const override;
    void CopyTo(clsPropertyData& target) const override { CopyRecord(*this, target); }

private:
    std::weak_ptr<clsSymbolData> fitShape_;
};

}  // namespace tamber

#include "document/records/clsPropertyText.h"

#include "document/cells/ProjectFileVersion.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/text.h"

namespace tamber {

namespace {

constexpr Long VersionWithFitShape = 0x60300;
/// Characters of a text that its name shows.
constexpr std::size_t ShownLength = 50;

}  // namespace

std::optional<String> clsPropertyText::Name() const {
    String shown = InitialText.substr(0, ShownLength);
    shown = ReplaceAll(ReplaceAll(shown, vbCrLf, u"↓"), u"\n", u"↓");
    shown = ReplaceAll(shown, u"\r", u"←");
    return (blDynamic ? VariableName : String()) + u"[" + shown + u"]";
}

String clsPropertyText::OptionText() const {
    const String mark = blDynamic ? u"*" : FitShapeSymbol() ? u"~" : u"";
    return (blFlashType ? u"$" : u"") + mark;
}

void clsPropertyText::Load(clsCSV& csv) {
    InitialText = csv.TakeText();
    DefineText = csv.TakeText();
    FontName = csv.TakeText();
    Width = csv.TakeLong();
    height = csv.TakeLong();
    FontSize = csv.TakeLong();
    FontLeading = csv.TakeSingle();
    FontCharSpace = csv.TakeSingle();
    FontBold = csv.TakeBoolean();
    FontItalic = csv.TakeBoolean();
    FontColorRed = csv.TakeByte();
    FontColorGreen = csv.TakeByte();
    FontColorBlue = csv.TakeByte();
    Alignment = csv.TakeLong();
    blAutoSize = csv.TakeBoolean();
    blDynamic = csv.TakeBoolean();
    if (blDynamic) {
        blWordWrap = csv.TakeBoolean();
        blInput = csv.TakeBoolean();
        blSelect = csv.TakeBoolean();
        blMultiLine = csv.TakeBoolean();
        blBorder = csv.TakeBoolean();
        blPassword = csv.TakeBoolean();
        blHtml = csv.TakeBoolean();
        VariableName = csv.TakeText();
    }
    if (!csv.Value().empty()) {
        blFlashType = csv.TakeBoolean();
        Thickness = csv.TakeLong();
        Sharpness = csv.TakeLong();
    }
    if (ProjectFileVersion < VersionWithFitShape) return;
    FitShapeScaleX = csv.TakeSingle();
    FitShapeScaleY = csv.TakeSingle();
    blFitAngle = csv.TakeBoolean();
    blFitEven = csv.TakeBoolean();
    blFitOpposite = csv.TakeBoolean();
    eBasePos = csv.TakeLong();
}

void clsPropertyText::Save(clsCSV& csv) const {
    csv.Put(InitialText);
    csv.Put(DefineText);
    csv.Put(FontName);
    csv.Put(Width);
    csv.Put(height);
    csv.Put(FontSize);
    csv.Put(FontLeading);
    csv.Put(FontCharSpace);
    csv.Put(FontBold);
    csv.Put(FontItalic);
    csv.Put(Long{FontColorRed});
    csv.Put(Long{FontColorGreen});
    csv.Put(Long{FontColorBlue});
    csv.Put(Alignment);
    csv.Put(blAutoSize);
    csv.Put(blDynamic);
    if (blDynamic) {
        csv.Put(blWordWrap);
        csv.Put(blInput);
        csv.Put(blSelect);
        csv.Put(blMultiLine);
        csv.Put(blBorder);
        csv.Put(blPassword);
        csv.Put(blHtml);
        csv.Put(VariableName);
    }
    csv.Put(blFlashType);
    csv.Put(Thickness);
    csv.Put(Sharpness);
    csv.Put(FitShapeScaleX);
    csv.Put(FitShapeScaleY);
    csv.Put(blFitAngle);
    csv.Put(blFitEven);
    csv.Put(blFitOpposite);
    csv.Put(eBasePos);
}

Long clsPropertyText::FitShapeIndex() const {
    const auto symbol = FitShapeSymbol();
    return symbol ? symbol->Index : 0;
}

}  // namespace tamber

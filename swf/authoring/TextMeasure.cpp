#include "swf/authoring/TextMeasure.h"

#include <cmath>

#include "document/records/clsPropertyVector.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/twips.h"
#include "swf/authoring/TextDefinition.h"
#include "swf/mdlSWFTag.h"

namespace tamber {

namespace {

/// Pixels between a text field's border and its text, on each side.
constexpr Long FieldMargin = 2;
/// Measures in place of the player's own fonts, which only the player has.
constexpr StringView DeviceStandIn = u"ＭＳ ゴシック";

Long ToPixels(Long twips) {
    return (twips + TwipsPerPixel - 1) / TwipsPerPixel;
}

Long Scaled(Long pixels, Single scale) {
    return mdlSWFTag::ToField(std::ceil(static_cast<double>(pixels) * scale));
}

}  // namespace

void TextMeasure::SetTextSize(clsPropertyText& text) {
    if (text.blDynamic && !text.blAutoSize) return;
    const auto outline = text.FitShapeSymbol();
    const auto* drawing = outline ? outline->Property<clsPropertyVector>() : nullptr;
    if (!text.blDynamic && drawing != nullptr) {
        text.Width = Scaled(drawing->Width, text.FitShapeScaleX);
        text.height = Scaled(drawing->height, text.FitShapeScaleY);
        return;
    }
    LogFont face = FaceOf(text);
    if (clsFontAdmin::IsDeviceFont(face.FaceName)) face.FaceName = DeviceStandIn;
    fonts_.SetOutLine(face, text.InitialText);
    const auto font =
        fonts_.CinFontObject(clsFontAdmin::MkFontName(face.FaceName, face.Bold, face.Italic));
    const TextLayout layout(WithLineFeeds(text.InitialText), *font, FormatOf(text));
    const Long margin = text.blDynamic ? 2 * FieldMargin : 0;
    text.Width = ToPixels(layout.Width()) + margin;
    text.height = ToPixels(layout.Height()) + margin;
}

}  // namespace tamber

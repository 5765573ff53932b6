#include "document/records/clsPropertyText.h"

#include "document/symbols/clsSymbolData.h"
#include "platform/text.h"

namespace tamber {

namespace {

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

Long clsPropertyText::FitShapeIndex() const {
    const auto symbol = FitShapeSymbol();
    return symbol ? symbol->Index : 0;
}

}  // namespace tamber

#include "vector/SvgStyleState.h"

#include <algorithm>

#include "platform/rounding.h"
#include "vector/SvgColors.h"
#include "vector/SvgNumbers.h"

namespace tamber {

namespace {

constexpr Long MiterOne = 256;
/// Characters of a reference to a gradient that count.
constexpr std::size_t LongestReference = 1024;
/// A miter limit takes 16 bits.
constexpr Single MostMiter = 255;

Long CapOf(std::string_view name) {
    if (name == "round") return 0;
    return name == "square" ? 2 : 1;
}

Long JoinOf(std::string_view name) {
    if (name == "round") return 0;
    return name == "bevel" ? 1 : 2;
}

void SplitItems(std::string_view style, const std::function<void(const SvgAttribute&)>& take) {
    while (!style.empty()) {
        const std::size_t end = std::min(style.find(';'), style.size());
        const std::string_view item = style.substr(0, end);
        const std::size_t colon = item.find(':');
        if (colon != std::string_view::npos)
            take({TrimSvgSpace(item.substr(0, colon)), TrimSvgSpace(item.substr(colon + 1))});
        style.remove_prefix(std::min(end + 1, style.size()));
    }
}

}  // namespace

void ForEachSvgStyleItem(std::string_view style, SvgDocument& document,
                         const std::function<void(const SvgAttribute&)>& take) {
    style = TrimSvgSpace(style);
    while (style.starts_with('&')) {
        const std::size_t end = style.find(';');
        if (end == std::string_view::npos) return;
        if (const auto* value = document.FindId<std::string_view>(style.substr(1, end - 1))) {
            SvgBudget::Spend(document.Budget.Repeats, value->size());
            SplitItems(*value, take);
        }
        style = TrimSvgSpace(style.substr(end + 1));
    }
    SplitItems(style, take);
}

Long SvgShare(std::string_view text, Long whole) {
    const Single share = ParseSvgLengthPercent(text) * static_cast<Single>(whole);
    return RoundToLong(std::clamp(share, 0.0f, 255.0f));
}

bool SvgStyleState::ApplyPaint(const SvgAttribute& item, SvgLeftOut& leftOut) {
    const bool fill = item.Name == "fill";
    if (!fill && item.Name != "stroke") return false;
    const bool reference = item.Value.starts_with("url");
    if (item.Value == "currentColor") leftOut.Note(SvgFeature::CurrentColor);
    // A reference is looked at again for each element that inherits it.
    if (fill) FillText = item.Value.substr(0, LongestReference);
    if (!fill && reference) leftOut.Note(SvgFeature::StrokeGradient);
    if (fill && reference) return true;
    Long& color = fill ? FillColor : StrokeColor;
    color = item.Value == "none" ? NoColor : ParseSvgColor(item.Value);
    const bool percent = item.Value.find('%') != std::string_view::npos;
    const bool known = reference || item.Value == "currentColor" || item.Value == "none";
    if (!known && (percent || !FindSvgColor(item.Value))) leftOut.Note(SvgFeature::Paint);
    return true;
}

bool SvgStyleState::ApplyLine(const SvgAttribute& item) {
    if (item.Name == "stroke-width")
        StrokeWidth = ParseSvgLength(item.Value);
    else if (item.Name == "stroke-linecap")
        LineCap = CapOf(item.Value);
    else if (item.Name == "stroke-linejoin")
        LineJoin = JoinOf(item.Value);
    else if (item.Name == "stroke-miterlimit")
        MiterLimit =
            RoundToLong(std::clamp(ParseSvgNumber(item.Value), 0.0f, MostMiter) * MiterOne);
    else
        return false;
    return true;
}

bool SvgStyleState::ApplyOpacity(const SvgAttribute& item) {
    if (item.Name == "opacity")
        Opacity = SvgShare(item.Value, Opacity);
    else if (item.Name == "fill-opacity")
        FillOpacity = SvgShare(item.Value, FillOpacity);
    else if (item.Name == "stroke-opacity")
        StrokeOpacity = SvgShare(item.Value, StrokeOpacity);
    else
        return false;
    return true;
}

void SvgStyleState::Apply(const SvgAttribute& attribute, SvgDocument& document) {
    const auto apply = [&](const SvgAttribute& item) {
        if (!ApplyPaint(item, document.LeftOut) && !ApplyLine(item) && !ApplyOpacity(item))
            document.LeftOut.NoteAttribute(item.Name, item.Value);
    };
    if (attribute.Name == "style")
        ForEachSvgStyleItem(attribute.Value, document, apply);
    else
        apply(attribute);
}

}  // namespace tamber

#include "swf/tags/clsSWFTagDefineText.h"

#include "swf/mdlSWFTag.h"

#include <algorithm>
#include <limits>
#include <span>

namespace tamber {

namespace {

constexpr Long WideCountVersion = 7;
constexpr std::size_t MostGlyphs = 127;
constexpr std::size_t MostGlyphsWide = 255;
constexpr Long Opaque = 255;
constexpr Long TextRecord = 0x80;
/// Font, colour, y and x follow.
constexpr Long AllStyles = 15;

}  // namespace

clsSWFTagDefineText::FieldWidths clsSWFTagDefineText::Widths() const {
    Long smallest = std::numeric_limits<Long>::max();
    Long largest = std::numeric_limits<Long>::min();
    for (Long i = 1; i <= FontObject->GlyphCount(); ++i) {
        const Long advance = AdvanceOf(FontObject->FontData(i).CellIncX, Format.FontSize);
        smallest = std::min(smallest, advance);
        largest = std::max(largest, advance);
    }
    if (smallest > largest) smallest = largest = 0;
    return {mdlSWFTag::BitLength(std::max(FontObject->GlyphCount() - 1, 0), true),
            std::max(mdlSWFTag::BitLength(largest + Format.FontCharSpace, false),
                     mdlSWFTag::BitLength(smallest + Format.FontCharSpace, false))};
}

Long clsSWFTagDefineText::StartOf(const TextLayout::Line& line, const TextLayout& layout) const {
    if (Alignment == Right) return layout.Width() - line.Right;
    if (Alignment == Centre) return (layout.Width() - line.Right - line.Left) / 2;
    return -line.Left;
}

/// A line longer than a record can count goes on in further records, which begin where the one
/// before ended.
void clsSWFTagDefineText::SaveLine(const TextLayout::Line& line, const TextLayout& layout,
                                   const FieldWidths& widths) const {
    mdlSWFTag::SetAlign();
    mdlSWFTag::SetBytes(1, TextRecord | AllStyles);
    mdlSWFTag::SetBytes(2, FontID);
    for (const Byte part : {FontColorRed, FontColorGreen, FontColorBlue})
        mdlSWFTag::SetBytes(1, part);
    if (Ver != 1) mdlSWFTag::SetBytes(1, Opaque);
    mdlSWFTag::SetBytes(2, StartOf(line, layout));
    mdlSWFTag::SetBytes(2, line.Y);
    mdlSWFTag::SetBytes(2, Format.FontSize);
    const std::size_t most =
        mdlSWFTag::swfVersion() >= WideCountVersion ? MostGlyphsWide : MostGlyphs;
    std::span<const TextLayout::Glyph> rest = line.Glyphs;
    while (true) {
        const auto part = rest.first(std::min(most, rest.size()));
        rest = rest.subspan(part.size());
        mdlSWFTag::SetBytes(1, static_cast<Long>(part.size()));
        for (const TextLayout::Glyph& glyph : part) {
            mdlSWFTag::SetBits(widths.Glyph, glyph.Index - 1);
            mdlSWFTag::SetBits(widths.Advance, glyph.Advance + Format.FontCharSpace);
        }
        if (rest.empty()) return;
        mdlSWFTag::SetAlign();
        mdlSWFTag::SetBytes(1, TextRecord);
    }
}

void clsSWFTagDefineText::Save() {
    if (!FontObject) return;
    const TextLayout layout(text_, *FontObject, Format);
    const std::size_t body = mdlSWFTag::BeginTag(TagNum());
    mdlSWFTag::SetBytes(2, ID);
    mdlSWFTag::SetRect(0, layout.Width(), 0, layout.Height());
    mdlSWFTag::SetMatrix({});
    mdlSWFTag::SetAlign();
    const FieldWidths widths = Widths();
    mdlSWFTag::SetBytes(1, widths.Glyph);
    mdlSWFTag::SetBytes(1, widths.Advance);
    for (const TextLayout::Line& line : layout.Lines())
        if (!line.Glyphs.empty()) SaveLine(line, layout, widths);
    mdlSWFTag::SetAlign();
    mdlSWFTag::SetBytes(1, 0);
    mdlSWFTag::EndTag(body);
}

}  // namespace tamber

#include "swf/tags/TextLayout.h"

#include <algorithm>

#include "platform/text.h"
#include "swf/mdlSWFTag.h"

namespace tamber {

namespace {

/// Widths of very long lines stay within a RECT field.
Long Sum(Long a, Long b) {
    return static_cast<Long>(
        std::clamp<std::int64_t>(std::int64_t{a} + b, -mdlSWFTag::MaxField, mdlSWFTag::MaxField));
}

}  // namespace

Long AdvanceOf(Long cellIncX, Long fontSize) {
    constexpr std::int64_t Cell = 1024;
    return static_cast<Long>(std::clamp<std::int64_t>(std::int64_t{fontSize} * cellIncX / Cell,
                                                      -mdlSWFTag::MaxField, mdlSWFTag::MaxField));
}

TextLayout::TextLayout(StringView text, const clsFontObject& font, const TextFormat& format) {
    Line line;
    Long x = 0;
    for (const char16_t character : text) {
        if (character == u'\n') {
            const Long next = Sum(line.Y, Sum(format.FontLeading, format.FontSize));
            lines_.push_back(std::move(line));
            line = Line();
            line.Y = next;
            x = 0;
            continue;
        }
        const Long index = font.GetFontIndex(character);
        const Long cell = index > 0 ? font.FontData(index).CellIncX : 0;
        const Long advance = AdvanceOf(cell, format.FontSize);
        line.Glyphs.push_back({index, advance});
        line.Left = std::min(line.Left, x);
        line.Right = std::max(line.Right, Sum(x, advance));
        x = Sum(x, Sum(advance, format.FontCharSpace));
    }
    lines_.push_back(std::move(line));
    for (const Line& each : lines_) width_ = std::max(width_, each.Right - each.Left);
    height_ = std::max(0, Sum(lines_.back().Y, format.FontSize));
}

String WithLineFeeds(StringView text) {
    return ReplaceAll(ReplaceAll(text, u"\r\n", u"\n"), u"\r", u"\n");
}

}  // namespace tamber

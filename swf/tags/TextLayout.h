#pragma once

#include <vector>

#include "swf/tags/clsFontObject.h"

namespace tamber {

/// How the lines of a text are set, twips.
struct TextFormat {
    Long FontSize = 0;
    Long FontLeading = 0;    ///< between the lines
    Long FontCharSpace = 0;  ///< between the characters
};

/// Advance of a glyph at a font size.
Long AdvanceOf(Long cellIncX, Long fontSize);

/// A text cut into lines of placed glyphs.
class TextLayout {
public:
    struct Glyph {
        Long Index = 0;  ///< in the font, from 1; 0 for a character that it lacks
        Long Advance = 0;
    };
    struct Line {
        std::vector<Glyph> Glyphs;
        Long Y = 0;  ///< from the first line's top
        Long Left = 0;
        Long Right = 0;
    };

    /// `text` has LF as its line end.
    TextLayout(StringView text, const clsFontObject& font, const TextFormat& format);

    const std::vector<Line>& Lines() const { return lines_; }
    /// Of the widest line.
    Long Width() const { return width_; }
    /// From the first line's top to the last one's bottom.
    Long Height() const { return height_; }

private:
    std::vector<Line> lines_;
    Long width_ = 0;
    Long height_ = 0;
};

/// CR LF and CR as LF.
String WithLineFeeds(StringView text);

}  // namespace tamber

#pragma once

#include "swf/clsSWFTag.h"
#include "swf/tags/TagCodes.h"
#include "swf/tags/TextLayout.h"

namespace tamber {

/// DefineText (`Ver` 1), whose colours have no opacity, and DefineText2: identifier, bounds,
/// matrix, widths of the fields, then a record a line: flags, font, colour, place, size, and index
/// and advance of each glyph. The layout is made at `Save`, when the glyphs of the font have their
/// final places.
class clsSWFTagDefineText : public clsSWFTag {
public:
    static constexpr Long Left = 0;
    static constexpr Long Right = 1;
    static constexpr Long Centre = 2;

    Long Ver = 2;
    Long ID = 0;
    Long FontID = 0;
    TextFormat Format;
    Long Alignment = Left;
    Byte FontColorRed = 0;
    Byte FontColorGreen = 0;
    Byte FontColorBlue = 0;
    /// A tag without a font writes nothing.
    std::shared_ptr<const clsFontObject> FontObject;

    const String& Text() const { return text_; }
    /// Every line end becomes LF.
    void Text(StringView text) { text_ = WithLineFeeds(text); }

    Long TagNum() const override { return Ver == 1 ? TagCode::DefineText : TagCode::DefineText2; }
    void Save() override;

private:
    struct FieldWidths {
        Long Glyph = 1;
        Long Advance = 1;
    };

    FieldWidths Widths() const;
    void SaveLine(const TextLayout::Line& line, const TextLayout& layout,
                  const FieldWidths& widths) const;
    Long StartOf(const TextLayout::Line& line, const TextLayout& layout) const;

    String text_;
};

}  // namespace tamber

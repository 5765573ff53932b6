#include "canvas/picture/TextReader.h"

#include "canvas/picture/MovieValues.h"

namespace tamber {

namespace {

enum RecordFlag : std::uint32_t { HasFont = 8, HasColor = 4, HasY = 2, HasX = 1 };

/// Of the two bytes of flags of an edit text, the first one above.
enum FieldFlag : std::uint32_t {
    HasText = 0x8000,
    WordWrap = 0x4000,
    MultiLine = 0x2000,
    Password = 0x1000,
    HasFieldColor = 0x0400,
    HasMaxLength = 0x0200,
    HasFieldFont = 0x0100,
    HasFontClass = 0x0080,
    AutoSize = 0x0040,
    HasLayout = 0x0020,
    Border = 0x0008,
    Html = 0x0002,
    UseOutlines = 0x0001,
};

double ReadSigned(SwfBits& bits) {
    return static_cast<std::int16_t>(bits.GetUI(2));
}

}  // namespace

std::shared_ptr<TextCharacter> ReadText(SwfBits bits, bool hasAlpha, const FindFont& find) {
    bits.GetRect();
    const cairo_matrix_t matrix = ToCairo(bits.GetMatrix());
    const auto glyphBits = static_cast<Long>(bits.GetUI(1));
    const auto advanceBits = static_cast<Long>(bits.GetUI(1));
    std::vector<TextCharacter::PlacedGlyph> glyphs;
    TextCharacter::PlacedGlyph pen;
    while (const std::uint32_t flags = bits.GetUI(1)) {
        if ((flags & HasFont) != 0) pen.Font = find(static_cast<Long>(bits.GetUI(2)));
        if ((flags & HasColor) != 0) pen.Color = ReadColor(bits, hasAlpha);
        if ((flags & HasX) != 0) pen.X = ReadSigned(bits);
        if ((flags & HasY) != 0) pen.Y = ReadSigned(bits);
        if ((flags & HasFont) != 0) pen.Size = bits.GetUI(2);
        for (std::uint32_t count = bits.GetUI(1); count > 0; --count) {
            pen.Number = bits.GetBits(glyphBits);
            const Long advance = bits.GetSBits(advanceBits);
            if (pen.Font) glyphs.push_back(pen);
            pen.X += advance;
        }
    }
    return std::make_shared<TextCharacter>(matrix, std::move(glyphs));
}

std::shared_ptr<EditTextCharacter> ReadEditText(SwfBits bits, Long version, const FindFont& find) {
    EditTextFormat format;
    format.Bounds = ToBox(bits.GetRect());
    const std::uint32_t flags = bits.GetUI(1) << 8;
    const std::uint32_t all = flags | bits.GetUI(1);
    const auto has = [all](FieldFlag flag) { return (all & flag) != 0; };
    format.blWordWrap = has(WordWrap);
    format.blMultiLine = has(MultiLine);
    format.blPassword = has(Password);
    format.blAutoSize = has(AutoSize);
    format.blBorder = has(Border);
    format.blHtml = has(Html);
    format.blUseOutlines = has(UseOutlines);
    if (has(HasFieldFont)) format.Font = find(static_cast<Long>(bits.GetUI(2)));
    if (has(HasFontClass)) bits.GetString(version, 0, true);
    if (has(HasFieldFont) || has(HasFontClass)) format.Size = bits.GetUI(2);
    if (has(HasFieldColor)) format.Color = ReadColor(bits, true);
    if (has(HasMaxLength)) bits.GetUI(2);
    if (has(HasLayout)) {
        format.Alignment = static_cast<Long>(bits.GetUI(1));
        format.LeftMargin = bits.GetUI(2);
        format.RightMargin = bits.GetUI(2);
        format.Indent = ReadSigned(bits);
        format.Leading = ReadSigned(bits);
    }
    const String variable = bits.GetString(version, 0, true);
    const String text = has(HasText) ? bits.GetString(version, 0, true) : String();
    return std::make_shared<EditTextCharacter>(std::move(format), variable, text);
}

}  // namespace tamber

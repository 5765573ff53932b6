#pragma once

#include <vector>

#include "platform/fonts.h"

namespace tamber {

/// One glyph of an embedded font.
class clsFontData {
public:
    /// Where its shape lies among those of the font, bytes.
    std::size_t ShapeBegin = 0;
    std::uint32_t ShapeSize = 0;
    /// Advance to the next glyph, units of a cell of 1024.
    Long CellIncX = 0;
};

/// One face in one style, with the characters that a movie needs of it.
class clsFontObject {
public:
    explicit clsFontObject(String key) : FontName(std::move(key)) {}

    /// As clsFontAdmin::MkFontName makes it.
    const String FontName;

    /// The embedded characters in the order of their codes: those of code page 932, or of Unicode.
    String FontMap() const;
    Long GlyphCount() const { return static_cast<Long>(glyphs_.size()); }
    /// Glyph of the `index`-th character, from 1.
    const clsFontData& FontData(Long index) const {
        Sort();
        return glyphs_.at(static_cast<std::size_t>(index - 1)).Data;
    }
    /// Shape of such a glyph, as AddGlyphShape makes it.
    ByteView Shape(const clsFontData& glyph) const {
        return ByteView(shapes_).subspan(glyph.ShapeBegin, glyph.ShapeSize);
    }
    /// Characters are in the order of code page 932. A change sorts them anew.
    bool blSJis() const { return sJis_; }
    void blSJis(bool value);
    /// First frame that needs the font, 0 while none does. A later one is not taken.
    Long AuthorFrame() const { return authorFrame_; }
    void AuthorFrame(Long frame);
    void InitAuthorFrame() { authorFrame_ = 0; }

    bool Holds(char16_t character) const { return positions_[character] != 0; }
    /// Position of a character, from 1; 0 when it is not embedded.
    Long GetFontIndex(char16_t character) const {
        Sort();
        return positions_[character];
    }
    /// Embeds a character, which must not be there yet.
    void AddGlyph(char16_t character, const GlyphOutlineRecord& record);

private:
    struct Glyph {
        clsFontData Data;
        char16_t Character = 0;
        /// In the order at hand.
        std::uint16_t Code = 0;
    };

    std::uint16_t CodeOf(char16_t character) const;
    /// Puts glyphs that came since into their places.
    void Sort() const;

    mutable std::vector<Glyph> glyphs_;
    /// Of all glyphs, in the order in which they came.
    Bytes shapes_;
    /// Of every character, in `glyphs_` from 1.
    mutable std::vector<Long> positions_ = std::vector<Long>(0x10000);
    mutable bool sorted_ = true;
    bool sJis_ = false;
    Long authorFrame_ = 0;
};

/// Code of a character in code page 932, one byte or two.
std::uint16_t AnsiCode(char16_t character);

}  // namespace tamber

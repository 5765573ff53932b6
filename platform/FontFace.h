#pragma once

#include <ft2build.h>
#include FT_FREETYPE_H

#include <memory>

#include "platform/CellOutline.h"

namespace tamber {

/// Styles that a face is given where its family has no face with them.
struct SyntheticStyle {
    bool Bold = false;
    bool Italic = false;
};

/// An open face of a font file.
class FontFace {
public:
    /// The face at an index of a file as fontconfig counts them. Nothing when the file is damaged,
    /// or holds no outlines or no table of Unicode characters.
    static std::unique_ptr<FontFace> Open(FT_Library library, StringView file, long index);
    FontFace(const FontFace&) = delete;
    FontFace& operator=(const FontFace&) = delete;

    /// Adds metrics and outline of its character to an empty record. False, with an empty outline,
    /// when the glyph is damaged.
    bool ReadOutline(GlyphOutlineRecord& record, SyntheticStyle style);

private:
    struct Close {
        void operator()(FT_Face face) const { FT_Done_Face(face); }
    };

    FontFace(Bytes data, FT_Library library, long index);
    bool FindCell();
    bool LoadGlyph(char16_t character);

    /// The whole file: a mapped one would stop the program when another one cuts it short.
    Bytes data_;
    std::unique_ptr<FT_FaceRec, Close> face_;
    /// From the base line to the cell's top, and the height of the cell, font units.
    Long ascent_ = 0;
    Long cellHeight_ = 0;
    CellOutline cellOutline_;
};

}  // namespace tamber

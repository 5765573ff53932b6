#include "platform/FontFace.h"

#include FT_TRUETYPE_TABLES_H

#include "platform/files.h"
#include "platform/rounding.h"

namespace tamber {

namespace {

/// Parts of an em by which the strokes of a synthetic bold face are wider.
constexpr FT_Pos BoldPart = 24;
/// Parts of a font unit that an outline is emboldened in.
constexpr FT_Pos FineUnits = 64;
/// Slope of a synthetic italic face, the tangent of 12 degrees.
constexpr double ItalicShear = 0.2126;

constexpr std::uint16_t NoOs2Version = 0xFFFF;

bool IsSurrogate(char16_t c) {
    return c >= 0xD800 && c <= 0xDFFF;
}

/// Widens all strokes. The left edge and the base line stay; the outline grows to the right and up.
void Embolden(FT_Outline& outline, FT_Pos strength) {
    for (int i = 0; i < outline.n_points; ++i) {
        outline.points[i].x *= FineUnits;
        outline.points[i].y *= FineUnits;
    }
    // An outline without an inside has nothing to widen and stays as it is.
    (void)FT_Outline_EmboldenXY(&outline, strength, strength);
}

}  // namespace

FontFace::FontFace(Bytes data, FT_Library library, long index) : data_(std::move(data)) {
    FT_Face face = nullptr;
    if (FT_New_Memory_Face(library, data_.data(), static_cast<FT_Long>(data_.size()), index,
                           &face) == 0)
        face_.reset(face);
}

std::unique_ptr<FontFace> FontFace::Open(FT_Library library, StringView file, long index) {
    Bytes data;
    if (!ReadFileBytes(file, data)) return nullptr;
    std::unique_ptr<FontFace> face(new FontFace(std::move(data), library, index));
    return face->face_ && face->FindCell() ? std::move(face) : nullptr;
}

bool FontFace::FindCell() {
    FT_Face face = face_.get();
    if (!FT_IS_SCALABLE(face) || face->charmap == nullptr) return false;
    const auto* os2 = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(face, FT_SFNT_OS2));
    if (os2 != nullptr && os2->version != NoOs2Version) {
        ascent_ = os2->usWinAscent;
        cellHeight_ = ascent_ + os2->usWinDescent;
    }
    if (cellHeight_ == 0) {
        ascent_ = face->ascender;
        cellHeight_ = ascent_ - face->descender;
    }
    return cellHeight_ > 0;
}

bool FontFace::LoadGlyph(char16_t character) {
    const FT_UInt glyph = IsSurrogate(character) ? 0 : FT_Get_Char_Index(face_.get(), character);
    return FT_Load_Glyph(face_.get(), glyph, FT_LOAD_NO_SCALE | FT_LOAD_LINEAR_DESIGN) == 0 &&
           face_->glyph->format == FT_GLYPH_FORMAT_OUTLINE;
}

bool FontFace::ReadOutline(GlyphOutlineRecord& record, SyntheticStyle style) {
    CellPlacement placement{.CellHeight = static_cast<double>(cellHeight_)};
    record.Ascent = placement.Ascent = RoundToLong(CellUnits(ascent_, placement));
    if (!LoadGlyph(record.Character)) return false;

    FT_GlyphSlot slot = face_->glyph;
    FT_Pos advance = slot->metrics.horiAdvance;
    if (style.Bold) {
        const FT_Pos strength = face_->units_per_EM * FineUnits / BoldPart;
        Embolden(slot->outline, strength);
        placement.CellHeight *= FineUnits;
        // Every character that moves the pen, a blank too, moves it on by the width that strokes
        // gain; marks without an advance stay on their letter.
        advance = advance == 0 ? 0 : advance * FineUnits + strength;
    }
    // A slanted character keeps its advance.
    if (style.Italic) placement.Shear = ItalicShear;
    if (!cellOutline_.Read(slot->outline, placement, record.Outline)) {
        record.Outline.Contours.clear();
        return false;
    }
    record.CellIncX = RoundToLong(CellUnits(static_cast<double>(advance), placement));
    return true;
}

}  // namespace tamber

#include "swf/tags/clsFontObject.h"

#include <algorithm>

#include "platform/codepage.h"
#include "swf/tags/GlyphShape.h"

namespace tamber {

std::uint16_t AnsiCode(char16_t character) {
    std::uint32_t code = 0;
    for (const Byte byte : EncodeAnsi(StringView(&character, 1))) code = code << 8 | byte;
    return static_cast<std::uint16_t>(code);
}

std::uint16_t clsFontObject::CodeOf(char16_t character) const {
    return sJis_ ? AnsiCode(character) : character;
}

void clsFontObject::AuthorFrame(Long frame) {
    if (frame > 0 && (authorFrame_ == 0 || frame < authorFrame_)) authorFrame_ = frame;
}

void clsFontObject::blSJis(bool value) {
    if (value == sJis_) return;
    sJis_ = value;
    for (Glyph& glyph : glyphs_) glyph.Code = CodeOf(glyph.Character);
    sorted_ = false;
}

void clsFontObject::Sort() const {
    if (sorted_) return;
    // Characters without a place in the code page share the code of "?" and keep their order, for
    // which the place is the lower half of the key.
    std::vector<std::uint32_t> keys;
    keys.reserve(glyphs_.size());
    for (const Glyph& glyph : glyphs_)
        keys.push_back(std::uint32_t{glyph.Code} << 16 | static_cast<std::uint32_t>(keys.size()));
    std::sort(keys.begin(), keys.end());
    std::vector<Glyph> sorted;
    sorted.reserve(glyphs_.size());
    for (const std::uint32_t key : keys) sorted.push_back(glyphs_[key & 0xFFFF]);
    glyphs_ = std::move(sorted);
    for (std::size_t i = 0; i < glyphs_.size(); ++i)
        positions_[glyphs_[i].Character] = static_cast<Long>(i) + 1;
    sorted_ = true;
}

String clsFontObject::FontMap() const {
    Sort();
    String map;
    map.reserve(glyphs_.size());
    for (const Glyph& glyph : glyphs_) map += glyph.Character;
    return map;
}

void clsFontObject::AddGlyph(char16_t character, const GlyphOutlineRecord& record) {
    Glyph glyph{{}, character, CodeOf(character)};
    glyph.Data.CellIncX = record.CellIncX;
    glyph.Data.ShapeBegin = shapes_.size();
    AddGlyphShape(record.Outline, shapes_);
    glyph.Data.ShapeSize = static_cast<std::uint32_t>(shapes_.size() - glyph.Data.ShapeBegin);
    sorted_ = sorted_ && (glyphs_.empty() || glyphs_.back().Code <= glyph.Code);
    glyphs_.push_back(glyph);
    positions_[character] = GlyphCount();
}

}  // namespace tamber

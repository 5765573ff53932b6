#include "canvas/picture/FontCharacter.h"

#include "canvas/picture/ShapeReader.h"
#include "platform/RuntimeError.h"
#include "platform/codepage.h"
#include "swf/TextEncoding.h"
#include "swf/tags/TagCodes.h"

namespace tamber {

namespace {

enum FontFlag : std::uint32_t { HasLayout = 128, WideOffsets = 8, WideCodes = 4 };

constexpr double SmallUnit = 1024;
constexpr double FineUnit = 20480;
const PicturePath NoOutline;

std::shared_ptr<const BitmapCharacter> NoBitmap(Long) {
    return nullptr;
}

/// Bytes of a table from an offset up to another; nothing for offsets that make no sense.
ByteView Between(ByteView table, std::size_t from, std::size_t to) {
    if (from > table.size()) return {};
    if (to < from || to > table.size()) to = table.size();
    return table.subspan(from, to - from);
}

}  // namespace

FontCharacter::FontCharacter(Long tag, ByteView body, Long version)
    : tag_(tag), body_(body.begin(), body.end()) {
    unit_ = tag == TagCode::DefineFont3 ? FineUnit : SmallUnit;
    if (tag == TagCode::DefineFont)
        ReadShapeTable(SwfBits(body_));
    else
        ReadFont2(SwfBits(body_), version);
    outlines_.resize(shapes_.size());
}

/// The first offset tells how many there are.
void FontCharacter::ReadShapeTable(SwfBits bits) {
    const ByteView table = bits.Rest();
    if (table.empty()) return;
    std::vector<std::size_t> offsets{bits.GetUI(2)};
    const std::size_t count = offsets.front() / 2;
    while (offsets.size() < count) offsets.push_back(bits.GetUI(2));
    offsets.push_back(table.size());
    for (std::size_t i = 0; i < count; ++i)
        shapes_.push_back(Between(table, offsets[i], offsets[i + 1]));
}

void FontCharacter::ReadFont2(SwfBits bits, Long version) {
    const std::uint32_t flags = bits.GetUI(1);
    bits.GetUI(1);
    const std::size_t length = bits.GetUI(1);
    if (length > 0) name_ = bits.GetString(version, length, true);
    const std::size_t count = bits.GetUI(2);
    const Long width = (flags & WideOffsets) != 0 ? 4 : 2;
    const ByteView table = bits.Rest();
    if (count == 0) return;
    std::vector<std::size_t> offsets;
    for (std::size_t i = 0; i <= count; ++i) offsets.push_back(bits.GetUI(width));
    for (std::size_t i = 0; i < count; ++i)
        shapes_.push_back(Between(table, offsets[i], offsets[i + 1]));
    SwfBits rest(Between(table, offsets.back(), table.size()));
    ReadCodes(rest, count, (flags & WideCodes) != 0, version);
    if ((flags & HasLayout) != 0) ReadLayout(rest, count);
}

void FontCharacter::ReadCodes(SwfBits& bits, std::size_t count, bool isWide, Long version) {
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint32_t code = bits.GetUI(isWide ? 2 : 1);
        char16_t character = static_cast<char16_t>(code);
        if (!UsesUtf8(version, true)) {
            Bytes bytes{static_cast<Byte>(code)};
            if (code > 255) bytes.insert(bytes.begin(), static_cast<Byte>(code >> 8));
            const String text = DecodeAnsi(bytes);
            if (text.size() == 1) character = text.front();
        }
        glyphs_.emplace(character, i);
    }
}

void FontCharacter::ReadLayout(SwfBits& bits, std::size_t count) {
    const auto length = [&] { return static_cast<std::int16_t>(bits.GetUI(2)) / unit_; };
    ascent_ = length();
    descent_ = length();
    length();
    for (std::size_t i = 0; i < count; ++i) advances_.push_back(length());
}

const PicturePath& FontCharacter::Outline(std::size_t glyph) const {
    if (glyph >= shapes_.size()) return NoOutline;
    std::optional<PicturePath>& outline = outlines_[glyph];
    if (!outline) {
        outline.emplace();
        try {
            *outline = ShapeReader(SwfBits(shapes_[glyph]), tag_, NoBitmap).ReadGlyph();
        } catch (const RuntimeError&) {
            // It stays empty.
        }
    }
    return *outline;
}

GlyphSource::Glyph FontCharacter::Find(char16_t character) const {
    const auto found = glyphs_.find(character);
    if (found == glyphs_.end()) return {};
    const std::size_t glyph = found->second;
    return {&Outline(glyph), glyph < advances_.size() ? advances_[glyph] : 0};
}

}  // namespace tamber

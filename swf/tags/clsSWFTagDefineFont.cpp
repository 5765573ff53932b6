#include "swf/tags/clsSWFTagDefineFont.h"

#include <algorithm>

#include "platform/codepage.h"
#include "swf/mdlSWFTag.h"

namespace tamber {

namespace {

constexpr Long UnicodeVersion = 6;
constexpr Long EncodingShiftJis = 4;
constexpr Long EncodingAnsi = 1;
constexpr Long LanguageLatin = 1;
constexpr Long LanguageJapanese = 2;
constexpr Long Descent = 1024;
constexpr std::size_t LongestName = 255;
/// The two bytes of a RECT of four zeros: a width of 1 in five bits, four fields of a bit, padding.
constexpr Long EmptyRect = 0x0008;

bool IsDevice(StringView name) {
    return name.starts_with(u'_');
}

/// The name of a device font for Japanese text tells itself by its second character.
bool IsJapaneseDevice(StringView name) {
    return name.size() > 1 && name[1] > 128;
}

}  // namespace

bool clsSWFTagDefineFont::HasWideCodes() const {
    if (mdlSWFTag::swfVersion() >= UnicodeVersion) return true;
    const String map = FontObject->FontMap();
    return std::any_of(map.begin(), map.end(), [](char16_t c) { return AnsiCode(c) > 0xFF; });
}

void clsSWFTagDefineFont::SaveFlags() const {
    const bool unicode = mdlSWFTag::swfVersion() >= UnicodeVersion;
    const bool device = IsDevice(FontName);
    const bool japanese = IsJapaneseDevice(FontName);
    const Long glyphs = FontObject->GlyphCount() > 0 ? 1 : 0;
    const Long encoding = device && !unicode ? (japanese ? EncodingShiftJis : EncodingAnsi) : 0;
    mdlSWFTag::SetBits(1, glyphs);
    mdlSWFTag::SetBits(3, encoding);
    mdlSWFTag::SetBits(1, glyphs);
    mdlSWFTag::SetBits(1, HasWideCodes() ? 1 : 0);
    mdlSWFTag::SetBits(1, Italic ? 1 : 0);
    mdlSWFTag::SetBits(1, Bold ? 1 : 0);
    Long language = 0;
    if (unicode) language = device && !japanese ? LanguageLatin : LanguageJapanese;
    mdlSWFTag::SetBytes(1, language);
}

void clsSWFTagDefineFont::SaveName() const {
    Bytes name = mdlSWFTag::StringBytes(FontName, false, true);
    name.resize(std::min(name.size(), LongestName));
    mdlSWFTag::SetBytes(1, static_cast<Long>(name.size()));
    mdlSWFTag::SetByteArray(name);
}

void clsSWFTagDefineFont::SaveGlyphs(Long offsetBytes, bool withEnd) const {
    const Long count = FontObject->GlyphCount();
    std::size_t offset = static_cast<std::size_t>((count + (withEnd ? 1 : 0)) * offsetBytes);
    for (Long i = 1; i <= count; ++i) {
        mdlSWFTag::SetBytes(offsetBytes, static_cast<Long>(offset));
        offset += FontObject->FontData(i).ShapeSize;
    }
    if (withEnd) mdlSWFTag::SetBytes(offsetBytes, static_cast<Long>(offset));
    for (Long i = 1; i <= count; ++i)
        mdlSWFTag::SetByteArray(FontObject->Shape(FontObject->FontData(i)));
}

void clsSWFTagDefineFont::SaveCodes() const {
    const bool unicode = mdlSWFTag::swfVersion() >= UnicodeVersion;
    const Long bytes = HasWideCodes() ? 2 : 1;
    for (const char16_t c : FontObject->FontMap())
        mdlSWFTag::SetBytes(bytes, unicode ? c : static_cast<Long>(AnsiCode(c)));
}

void clsSWFTagDefineFont::SaveLayout() const {
    mdlSWFTag::SetBytes(2, 0);
    mdlSWFTag::SetBytes(2, Descent);
    mdlSWFTag::SetBytes(2, FontLeading);
    const Long count = FontObject->GlyphCount();
    for (Long i = 1; i <= count; ++i)
        mdlSWFTag::SetBytes(2, FontObject->FontData(i).CellIncX + FontCharSpace);
    for (Long i = 1; i <= count; ++i) mdlSWFTag::SetBytes(2, EmptyRect);
    mdlSWFTag::SetBytes(2, 0);
}

void clsSWFTagDefineFont::SaveFont2() const {
    SaveFlags();
    SaveName();
    mdlSWFTag::SetBytes(2, FontObject->GlyphCount());
    if (FontObject->GlyphCount() > 0) {
        SaveGlyphs(4, true);
        SaveCodes();
        SaveLayout();
    } else {
        mdlSWFTag::SetBytes(2, 2);
    }
}

void clsSWFTagDefineFont::Save() {
    if (TagNum() < 0 || !FontObject) return;
    if (FontObject->GlyphCount() == 0 && !IsDevice(FontName)) return;
    const std::size_t body = mdlSWFTag::BeginTag(TagNum());
    mdlSWFTag::SetBytes(2, ID);
    if (Ver == 1)
        SaveGlyphs(2, false);
    else
        SaveFont2();
    mdlSWFTag::EndTag(body);
}

}  // namespace tamber

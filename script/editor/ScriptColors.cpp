#include "script/editor/ScriptColors.h"

#include <algorithm>

#include "platform/TextEncoding.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "script/editor/KeywordSets.h"

namespace tamber {

namespace {

constexpr StringView FileName = u"color.txt";
constexpr std::uint64_t LongestFile = 65536;
constexpr Long AllBits = 0xFFFFFF;

std::optional<Long> HexOf(StringView digits) {
    if (digits.empty() || digits.size() > 8) return std::nullopt;
    std::uint32_t value = 0;
    for (const char16_t c : digits) {
        const std::size_t digit = StringView(u"0123456789abcdef").find(FoldCase(StringView(&c, 1)));
        if (digit == StringView::npos) return std::nullopt;
        value = value << 4 | static_cast<std::uint32_t>(digit);
    }
    return static_cast<Long>(value & AllBits);
}

/// The other way round, so that what was the high byte is the low one.
Long Turned(Long color) {
    return (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}

std::optional<Long> ColorOf(StringView line) {
    if (line.starts_with(u'#') && line.size() == 7)
        if (const auto color = HexOf(line.substr(1))) return Turned(*color);
    if (line.starts_with(u'#')) return HexOf(line.substr(1));
    if (StartsWithNoCase(line, u"&H")) return HexOf(line.substr(2));
    if (!IsNumeric(line)) return std::nullopt;
    return LeadingNumber(line) & AllBits;
}

String HexText(Long color) {
    String text = u"#";
    for (int shift = 20; shift >= 0; shift -= 4) text += u"0123456789ABCDEF"[color >> shift & 15];
    return text;
}

}  // namespace

ScriptColors ScriptColors::Parse(StringView text) {
    ScriptColors colors;
    const String lines = ReplaceAll(WithCrLf(String(text)), u"\r", u"");
    StringView rest = lines;
    for (std::size_t i = 0; i < ScriptColorCount && !rest.empty(); ++i) {
        const std::size_t end = std::min(rest.find(u'\n'), rest.size());
        colors.colors_[i] = ColorOf(Trim(rest.substr(0, end)));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return colors;
}

String ScriptColors::Text() const {
    std::size_t count = ScriptColorCount;
    while (count > 0 && !colors_[count - 1]) --count;
    String text;
    for (std::size_t i = 0; i < count; ++i)
        text += (colors_[i] ? HexText(Turned(*colors_[i])) : String()) + u"\r\n";
    return text;
}

void ScriptColors::Load(StringView folder) {
    Bytes bytes;
    const String path = OwnOrDefault(folder, FileName);
    const bool read = !path.empty() && ReadFileBytes(path, bytes, 0, LongestFile);
    *this = read ? Parse(DecodeText(bytes)) : ScriptColors();
}

bool ScriptColors::Save(StringView folder) const {
    return WriteFileBytes(EncodeAnsi(Text()), JoinPath(folder, FileName));
}

std::optional<Long> ScriptColors::Color(std::size_t color) const {
    if (color == 0 || color > ScriptColorCount) return std::nullopt;
    return colors_[color - 1];
}

void ScriptColors::Color(std::size_t color, Long value) {
    colors_.at(color - 1) = value & AllBits;
}

}  // namespace tamber

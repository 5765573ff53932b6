#include "platform/codepage.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace tamber {

namespace {

/// Stands for bytes that form no character of the code page.
constexpr char16_t NoCharacter = u'\u30FB';
constexpr char16_t Replacement = u'\uFFFD';
constexpr Byte NoPlace = '?';

bool IsLead(Byte byte) {
    return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
}
bool IsTrail(Byte byte) {
    return byte >= 0x40 && byte <= 0xFC && byte != 0x7F;
}
bool IsHighSurrogate(char16_t c) {
    return c >= 0xD800 && c <= 0xDBFF;
}
bool IsLowSurrogate(char16_t c) {
    return c >= 0xDC00 && c <= 0xDFFF;
}

struct Fit {
    char16_t Character;
    std::uint16_t Code;
};

/// Nearest codes of characters that the code page does not have.
constexpr std::array BestFits = std::to_array<Fit>({
    {0x00A0, 0x20},   {0x00A1, 0x21},   {0x00A2, 0x8191}, {0x00A3, 0x8192}, {0x00A5, 0x5C},
    {0x00A6, 0x7C},   {0x00A9, 0x63},   {0x00AA, 0x61},   {0x00AB, 0x81E1}, {0x00AC, 0x81CA},
    {0x00AD, 0x2D},   {0x00AE, 0x52},   {0x00AF, 0x8150}, {0x00B2, 0x32},   {0x00B3, 0x33},
    {0x00B5, 0x83CA}, {0x00B7, 0x8145}, {0x00B8, 0x8143}, {0x00B9, 0x31},   {0x00BA, 0x6F},
    {0x00BB, 0x81E2}, {0x2014, 0x815C}, {0x2016, 0x8161}, {0x203E, 0x7E},   {0x2212, 0x817C},
    {0x301C, 0x8160}, {0x3094, 0x8394},
});

/// Plain letters of U+00C0 to U+00FF; a blank where the code page has the sign itself.
constexpr std::string_view PlainLetters =
    "AAAAAAACEEEEIIII"
    "DNOOOOO OUUUUYTs"
    "aaaaaaaceeeeiiii"
    "dnooooo ouuuuyty";

/// One direction of the platform's own converter.
class Converter {
public:
    Converter(const char* to, const char* from) : handle_(iconv_open(to, from)) {}
    ~Converter() {
        if (Ok()) iconv_close(handle_);
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    /// The character of a two-byte code, 0 when there is none.
    char16_t Decode(Byte lead, Byte trail) {
        if (!Ok()) return 0;
        std::array<char, 2> code{static_cast<char>(lead), static_cast<char>(trail)};
        std::array<Byte, 4> unit{};
        char* from = code.data();
        char* to = reinterpret_cast<char*>(unit.data());
        std::size_t fromLeft = code.size();
        std::size_t toLeft = unit.size();
        (void)iconv(handle_, nullptr, nullptr, nullptr, nullptr);
        const bool done =
            iconv(handle_, &from, &fromLeft, &to, &toLeft) != static_cast<std::size_t>(-1);
        if (!done || fromLeft != 0 || toLeft != 2) return 0;
        return static_cast<char16_t>(unit[0] | unit[1] << 8);
    }

private:
    bool Ok() const { return reinterpret_cast<std::intptr_t>(handle_) != -1; }

    iconv_t handle_;
};

/// Of several codes for one character the one with the lowest rank is written.
int Rank(std::uint16_t code) {
    const int lead = code >> 8;
    if (lead == 0x87) return 1;
    if (lead >= 0xFA) return 2;
    if (lead == 0xED || lead == 0xEE) return 3;
    return 0;
}

class CodePage932 {
public:
    CodePage932() {
        FillSingle();
        FillDouble();
        FillBestFits();
    }

    /// 0 when the code stands for no character; the NUL is the caller's own.
    char16_t Character(std::uint16_t code) const { return characters_[code]; }
    /// 0 when the character has no place.
    std::uint16_t Code(char16_t character) const { return codes_[character]; }

private:
    void Add(std::uint16_t code, char16_t character) {
        characters_[code] = character;
        std::uint16_t& known = codes_[character];
        if (known == 0 || Rank(code) < Rank(known)) known = code;
    }

    void FillSingle() {
        for (std::uint16_t code = 1; code <= 0x80; ++code) Add(code, code);
        characters_[0xA0] = u'\u00A0';
        for (std::uint16_t code = 0xA1; code <= 0xDF; ++code)
            Add(code, static_cast<char16_t>(0xFF61 + code - 0xA1));
        for (std::uint16_t code = 0xFD; code <= 0xFF; ++code)
            Add(code, static_cast<char16_t>(0xF8F1 + code - 0xFD));
    }

    void FillDouble() {
        Converter converter("UTF-16LE", "CP932");
        for (unsigned lead = 0x81; lead <= 0xFC; ++lead) {
            if (!IsLead(static_cast<Byte>(lead))) continue;
            for (unsigned trail = 0x40; trail <= 0xFC; ++trail) {
                if (!IsTrail(static_cast<Byte>(trail))) continue;
                const char16_t character =
                    converter.Decode(static_cast<Byte>(lead), static_cast<Byte>(trail));
                if (character != 0) Add(static_cast<std::uint16_t>(lead << 8 | trail), character);
            }
        }
    }

    void FillBestFits() {
        const auto fill = [this](char16_t character, std::uint16_t code) {
            if (codes_[character] == 0) codes_[character] = code;
        };
        for (const Fit& fit : BestFits) fill(fit.Character, fit.Code);
        for (std::size_t i = 0; i < PlainLetters.size(); ++i)
            if (PlainLetters[i] != ' ')
                fill(static_cast<char16_t>(0xC0 + i), static_cast<Byte>(PlainLetters[i]));
    }

    std::array<char16_t, 0x10000> characters_{};
    std::array<std::uint16_t, 0x10000> codes_{};
};

const CodePage932& Table() {
    static const CodePage932 table;
    return table;
}

/// Code point at `i` of a text, which moves behind it; a lone surrogate gives U+FFFD.
char32_t NextCodePoint(StringView text, std::size_t& i) {
    const char16_t c = text[i++];
    if (IsHighSurrogate(c) && i < text.size() && IsLowSurrogate(text[i]))
        return 0x10000 + (static_cast<char32_t>(c - 0xD800) << 10) +
               static_cast<char32_t>(text[i++] - 0xDC00);
    return IsHighSurrogate(c) || IsLowSurrogate(c) ? Replacement : c;
}

template <class Sink>
void PutUtf8(char32_t c, Sink put) {
    const auto tail = [c](int shift) { return static_cast<Byte>(0x80 | (c >> shift & 0x3F)); };
    if (c < 0x80) {
        put(static_cast<Byte>(c));
        return;
    }
    if (c < 0x800) {
        put(static_cast<Byte>(0xC0 | c >> 6));
    } else if (c < 0x10000) {
        put(static_cast<Byte>(0xE0 | c >> 12));
        put(tail(6));
    } else {
        put(static_cast<Byte>(0xF0 | c >> 18));
        put(tail(12));
        put(tail(6));
    }
    put(tail(0));
}

/// What a lead byte of UTF-8 asks for: the bytes behind it, and the range of the first of them that
/// keeps out overlong forms, surrogates and points above U+10FFFF. No length for a byte that leads
/// nothing.
struct Utf8Lead {
    std::size_t Length = 0;
    Byte Low = 0x80;
    Byte High = 0xBF;
};

Utf8Lead LeadOf(Byte byte) {
    if (byte >= 0xC2 && byte <= 0xDF) return {1};
    if (byte == 0xE0) return {2, 0xA0, 0xBF};
    if (byte == 0xED) return {2, 0x80, 0x9F};
    if (byte >= 0xE1 && byte <= 0xEF) return {2};
    if (byte == 0xF0) return {3, 0x90, 0xBF};
    if (byte == 0xF4) return {3, 0x80, 0x8F};
    if (byte >= 0xF1 && byte <= 0xF3) return {3};
    return {};
}

/// Code point of the sequence at `i`, which moves behind it or behind its longest sound part.
char32_t NextUtf8(ByteView bytes, std::size_t& i) {
    const Byte first = bytes[i++];
    if (first < 0x80) return first;
    Utf8Lead lead = LeadOf(first);
    if (lead.Length == 0) return Replacement;
    char32_t c = first & (0x3F >> lead.Length);
    for (std::size_t left = lead.Length; left > 0; --left) {
        if (i == bytes.size() || bytes[i] < lead.Low || bytes[i] > lead.High) return Replacement;
        c = c << 6 | (bytes[i++] & 0x3F);
        lead.Low = 0x80;
        lead.High = 0xBF;
    }
    return c;
}

}  // namespace

Bytes EncodeAnsi(StringView text) {
    Bytes bytes;
    bytes.reserve(text.size());
    for (const char16_t c : text) {
        if (c < 0x80) {
            bytes.push_back(static_cast<Byte>(c));
            continue;
        }
        const std::uint16_t code = Table().Code(c);
        if (code > 0xFF) bytes.push_back(static_cast<Byte>(code >> 8));
        bytes.push_back(code == 0 ? NoPlace : static_cast<Byte>(code & 0xFF));
    }
    return bytes;
}

String DecodeAnsi(ByteView bytes) {
    String text;
    text.reserve(bytes.size());
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const Byte byte = bytes[i];
        if (byte < 0x80) {
            text += static_cast<char16_t>(byte);
        } else if (!IsLead(byte)) {
            text += Table().Character(byte);
        } else if (i + 1 < bytes.size() && IsTrail(bytes[i + 1])) {
            const char16_t c =
                Table().Character(static_cast<std::uint16_t>(byte << 8 | bytes[++i]));
            text += c != 0 ? c : NoCharacter;
        } else {
            text += NoCharacter;
        }
    }
    return text;
}

bool SurvivesAnsi(StringView text) {
    return std::all_of(text.begin(), text.end(), [](char16_t c) {
        if (c < 0x80) return true;
        const std::uint16_t code = Table().Code(c);
        return code != 0 && Table().Character(code) == c;
    });
}

Bytes EncodeUtf8(StringView text) {
    Bytes bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size();)
        PutUtf8(NextCodePoint(text, i), [&bytes](Byte byte) { bytes.push_back(byte); });
    return bytes;
}

String DecodeUtf8(ByteView bytes) {
    String text;
    text.reserve(bytes.size());
    for (std::size_t i = 0; i < bytes.size();) {
        const char32_t c = NextUtf8(bytes, i);
        if (c >= 0x10000) {
            text += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
            text += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
        } else {
            text += static_cast<char16_t>(c);
        }
    }
    return text;
}

bool IsUtf8(ByteView bytes) {
    for (std::size_t i = 0; i < bytes.size();) {
        const std::size_t begin = i;
        const bool wellFormed = NextUtf8(bytes, i) != Replacement ||
                                (i - begin == 3 && bytes[begin] == 0xEF && bytes[begin + 2] == 0xBD);
        if (!wellFormed) return false;
    }
    return true;
}

std::string ToNarrow(StringView text) {
    std::string narrow;
    narrow.reserve(text.size());
    for (std::size_t i = 0; i < text.size();)
        PutUtf8(NextCodePoint(text, i),
                [&narrow](Byte byte) { narrow += static_cast<char>(byte); });
    return narrow;
}

String FromNarrow(std::string_view text) {
    return DecodeUtf8({reinterpret_cast<const Byte*>(text.data()), text.size()});
}

}  // namespace tamber

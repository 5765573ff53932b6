#include "platform/TextEncoding.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cstdint>

#include "platform/codepage.h"
#include "platform/text.h"

namespace tamber {

namespace {

constexpr Byte Escape = 0x1B;

bool StartsWith(ByteView bytes, std::initializer_list<Byte> mark) {
    return bytes.size() >= mark.size() && std::equal(mark.begin(), mark.end(), bytes.begin());
}

/// An escape sequence that chooses a character set of ISO-2022-JP.
bool HasJisEscape(ByteView bytes) {
    for (std::size_t i = 0; i + 2 < bytes.size(); ++i)
        if (bytes[i] == Escape && (bytes[i + 1] == '$' || bytes[i + 1] == '(')) return true;
    return false;
}

/// How well bytes fit a double-byte encoding: pairs less stray bytes, which weigh more.
struct Fitness {
    Long Pairs = 0;
    Long Strays = 0;
    bool FitsBetterThan(const Fitness& other) const {
        return Strays != other.Strays ? Strays < other.Strays : Pairs > other.Pairs;
    }
};

bool IsEucByte(Byte byte) {
    return byte >= 0xA1 && byte <= 0xFE;
}

Fitness EucFitness(ByteView bytes) {
    constexpr Byte HalfKana = 0x8E;
    Fitness fitness;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] < 0x80) continue;
        const bool leads = IsEucByte(bytes[i]) || bytes[i] == HalfKana;
        if (leads && i + 1 < bytes.size() && IsEucByte(bytes[i + 1])) {
            ++fitness.Pairs;
            ++i;
        } else {
            ++fitness.Strays;
        }
    }
    return fitness;
}

Fitness SjisFitness(ByteView bytes) {
    Fitness fitness;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const Byte byte = bytes[i];
        if (byte < 0x80 || (byte >= 0xA1 && byte <= 0xDF)) continue;
        const bool leads = byte != 0x80 && byte != 0xA0 && byte <= 0xFC;
        const Byte trail = i + 1 < bytes.size() ? bytes[i + 1] : Byte{0};
        if (leads && trail >= 0x40 && trail <= 0xFC && trail != 0x7F) {
            ++fitness.Pairs;
            ++i;
        } else {
            ++fitness.Strays;
        }
    }
    return fitness;
}

/// The platform's converter to UTF-16, low byte first.
class Converter {
public:
    explicit Converter(const char* from) : handle_(iconv_open("UTF-16LE", from)) {}
    ~Converter() {
        if (Ok()) iconv_close(handle_);
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    bool Ok() const { return reinterpret_cast<std::intptr_t>(handle_) != -1; }

    /// The whole text; a byte that cannot be taken is replaced.
    String Convert(ByteView bytes) {
        // The converter takes its input as non-const and does not write to it.
        auto* in = reinterpret_cast<char*>(const_cast<Byte*>(bytes.data()));
        std::size_t left = bytes.size();
        while (left > 0) {
            const std::size_t before = left;
            if (Step(&in, &left) || left != before) continue;
            text_ += u'\uFFFD';
            ++in;
            --left;
        }
        Step(nullptr, nullptr);
        return std::move(text_);
    }

private:
    /// Takes on what one block holds. False when nothing came out.
    bool Step(char** in, std::size_t* left) {
        std::array<char, 4096> block;
        char* out = block.data();
        std::size_t room = block.size();
        (void)iconv(handle_, in, left, &out, &room);
        const auto* units = reinterpret_cast<const Byte*>(block.data());
        for (std::size_t i = 0; i + 1 < block.size() - room; i += 2)
            text_ += static_cast<char16_t>(units[i] | units[i + 1] << 8);
        return room != block.size();
    }

    iconv_t handle_;
    String text_;
};

String Convert(ByteView bytes, const char* from) {
    Converter converter(from);
    return converter.Ok() ? converter.Convert(bytes) : DecodeAnsi(bytes);
}

/// Appends the code that a character of JIS X 0208, two bytes of 21h to 7Eh, has in code page 932.
void AppendKanji(Bytes& codes, Byte row, Byte cell) {
    const int lead = (row - 0x21) / 2 + 0x81;
    const bool odd = (row & 1) != 0;
    codes.push_back(static_cast<Byte>(lead <= 0x9F ? lead : lead + 0x40));
    codes.push_back(static_cast<Byte>(odd ? cell + (cell < 0x60 ? 0x1F : 0x20) : cell + 0x7E));
}

/// By way of code page 932, so that a text has the same characters whichever of the two encodings
/// it comes in. The Roman set counts as ASCII: programs mean a backslash with its yen sign.
String DecodeJis(ByteView bytes) {
    constexpr Byte NoCharacter = 0x80;
    enum class Set { Ascii, Kanji, Kana };
    Set set = Set::Ascii;
    Bytes codes;
    const auto graphic = [bytes](std::size_t i) {
        return i < bytes.size() && bytes[i] >= 0x21 && bytes[i] <= 0x7E;
    };
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const ByteView rest = bytes.subspan(i);
        if (StartsWith(rest, {Escape, '$', '@'}) || StartsWith(rest, {Escape, '$', 'B'})) {
            set = Set::Kanji;
            i += 2;
        } else if (StartsWith(rest, {Escape, '(', 'B'}) || StartsWith(rest, {Escape, '(', 'J'})) {
            set = Set::Ascii;
            i += 2;
        } else if (StartsWith(rest, {Escape, '(', 'I'})) {
            set = Set::Kana;
            i += 2;
        } else if (set == Set::Kanji && graphic(i) && graphic(i + 1)) {
            AppendKanji(codes, bytes[i], bytes[i + 1]);
            ++i;
        } else if (set == Set::Kana && graphic(i)) {
            codes.push_back(bytes[i] | 0x80);
        } else {
            codes.push_back(bytes[i] < 0x80 ? bytes[i] : NoCharacter);
        }
    }
    return DecodeAnsi(codes);
}

String DecodeUnicode(ByteView bytes) {
    const bool bigEndian = StartsWith(bytes, {0xFE, 0xFF});
    if (bigEndian || StartsWith(bytes, {0xFF, 0xFE})) bytes = bytes.subspan(2);
    String text;
    text.reserve(bytes.size() / 2);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
        text += static_cast<char16_t>(bigEndian ? bytes[i] << 8 | bytes[i + 1]
                                                : bytes[i] | bytes[i + 1] << 8);
    return text;
}

}  // namespace

TextEncoding DetectEncoding(ByteView bytes) {
    if (StartsWith(bytes, {0xEF, 0xBB, 0xBF})) return TextEncoding::Utf8;
    if (StartsWith(bytes, {0xFF, 0xFE}) || StartsWith(bytes, {0xFE, 0xFF}))
        return TextEncoding::Unicode;
    const bool ascii = std::all_of(bytes.begin(), bytes.end(), [](Byte b) { return b < 0x80; });
    if (ascii) return HasJisEscape(bytes) ? TextEncoding::Jis : TextEncoding::Sjis;
    if (IsUtf8(bytes)) return TextEncoding::Utf8;
    return EucFitness(bytes).FitsBetterThan(SjisFitness(bytes)) ? TextEncoding::Euc
                                                                : TextEncoding::Sjis;
}

String DecodeText(ByteView bytes, TextEncoding encoding) {
    switch (encoding) {
        case TextEncoding::Jis:
            return DecodeJis(bytes);
        case TextEncoding::Euc:
            return Convert(bytes, "EUC-JP-MS");
        case TextEncoding::Utf8:
            return DecodeUtf8(StartsWith(bytes, {0xEF, 0xBB, 0xBF}) ? bytes.subspan(3) : bytes);
        case TextEncoding::Unicode:
            return DecodeUnicode(bytes);
        case TextEncoding::Utf7:
            return Convert(bytes, "UTF-7");
        case TextEncoding::Sjis:
            return DecodeAnsi(bytes);
        case TextEncoding::Detect:
            break;
    }
    return DecodeText(bytes, DetectEncoding(bytes));
}

String WithCrLf(String text) {
    if (text.find(u"\r\n") != String::npos) return text;
    if (text.find(u'\r') != String::npos) return ReplaceAll(text, u"\r", u"\r\n");
    return ReplaceAll(text, u"\n", u"\r\n");
}

}  // namespace tamber

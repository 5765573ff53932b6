#include "platform/text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "platform/RuntimeError.h"
#include "platform/rounding.h"

namespace tamber {

namespace {

constexpr std::size_t LongestNumber = 400;

bool IsBlank(char16_t c) {
    return c == u' ' || c == u'\t';
}

char16_t Fold(char16_t c) {
    const bool latin = c >= u'A' && c <= u'Z';
    const bool wideLatin = c >= u'\uFF21' && c <= u'\uFF3A';
    const bool greek = c >= u'\u0391' && c <= u'\u03A9' && c != u'\u03A2';
    const bool cyrillic = c >= u'\u0410' && c <= u'\u042F';
    if (latin || wideLatin || greek || cyrillic) return static_cast<char16_t>(c + 32);
    return c == u'\u0401' ? u'\u0451' : c;
}

/// A number's text on the stack, in ASCII, without blanks around it and without a "+".
class NumberText {
public:
    explicit NumberText(StringView text) {
        while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
        while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
        if (text.size() > 1 && text.front() == u'+' && text[1] != u'-') text.remove_prefix(1);
        if (text.size() > chars_.size()) return;
        for (const char16_t c : text) {
            if (c > 127) {
                size_ = 0;
                return;
            }
            chars_[size_++] = static_cast<char>(c);
        }
    }

    const char* begin() const { return chars_.data(); }
    const char* end() const { return chars_.data() + size_; }
    bool empty() const { return size_ == 0; }

private:
    std::array<char, LongestNumber> chars_;
    std::size_t size_ = 0;
};

enum class Parsed { Number, NoNumber, Overflow };

Parsed ParseDouble(StringView text, double& value) {
    const NumberText number(text);
    if (number.empty()) return Parsed::NoNumber;
    // from_chars takes "inf" and "nan", which no cell means as a number.
    const char first = *number.begin() == '-' && number.begin() + 1 != number.end()
                           ? number.begin()[1]
                           : *number.begin();
    if ((first < '0' || first > '9') && first != '.') return Parsed::NoNumber;
    const auto [end, error] = std::from_chars(number.begin(), number.end(), value);
    if (error == std::errc::result_out_of_range && end == number.end()) return Parsed::Overflow;
    if (error != std::errc() || end != number.end()) return Parsed::NoNumber;
    return Parsed::Number;
}

double NumberOf(StringView text) {
    double value = 0;
    switch (ParseDouble(text, value)) {
        case Parsed::NoNumber:
            throw RuntimeError(ErrorTypeMismatch, u"Number", String(text.substr(0, 64)));
        case Parsed::Overflow:
            throw RuntimeError(ErrorOverflow, u"Number", String(text.substr(0, 64)));
        case Parsed::Number:
            break;
    }
    return value;
}

String FromAscii(const char* from, const char* to) {
    return String(from, to);
}

/// Matches one "[...]" class at the pattern's start and moves the pattern behind it.
bool MatchClass(char16_t c, StringView& pattern) {
    std::size_t i = 1;
    const bool negated = i < pattern.size() && pattern[i] == u'!';
    if (negated) ++i;
    bool found = false;
    while (i < pattern.size() && pattern[i] != u']') {
        const bool range =
            i + 2 < pattern.size() && pattern[i + 1] == u'-' && pattern[i + 2] != u']';
        const char16_t low = pattern[i];
        const char16_t high = range ? pattern[i + 2] : low;
        found = found || (c >= low && c <= high);
        i += range ? 3 : 1;
    }
    pattern.remove_prefix(std::min(i + 1, pattern.size()));
    return found != negated;
}

/// Matches one character against one element of a pattern that is no "*".
bool MatchOne(char16_t c, StringView& pattern) {
    const char16_t wanted = pattern.front();
    if (wanted == u'[') return MatchClass(c, pattern);
    pattern.remove_prefix(1);
    if (wanted == u'?') return true;
    if (wanted == u'#') return c >= u'0' && c <= u'9';
    return c == wanted;
}

}  // namespace

String FoldCase(StringView text) {
    String folded(text);
    for (char16_t& c : folded) c = Fold(c);
    return folded;
}

bool EqualsNoCase(StringView a, StringView b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (Fold(a[i]) != Fold(b[i])) return false;
    return true;
}

bool StartsWithNoCase(StringView text, StringView prefix) {
    return text.size() >= prefix.size() && EqualsNoCase(text.substr(0, prefix.size()), prefix);
}

String ToText(Long value) {
    std::array<char, 16> chars;
    const auto end = std::to_chars(chars.data(), chars.data() + chars.size(), value).ptr;
    return FromAscii(chars.data(), end);
}

String ToText(Single value) {
    std::array<char, 32> chars;
    const auto end = std::to_chars(chars.data(), chars.data() + chars.size(),
                                   static_cast<double>(value), std::chars_format::general, 7)
                         .ptr;
    String text = FromAscii(chars.data(), end);
    for (char16_t& c : text)
        if (c == u'e') c = u'E';
    return text;
}

String ToText(bool value) {
    return value ? u"True" : u"False";
}

String ToGroupedText(std::int64_t value) {
    String digits;
    auto rest =
        value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
    int count = 0;
    do {
        if (count != 0 && count % 3 == 0) digits.insert(digits.begin(), u',');
        digits.insert(digits.begin(), static_cast<char16_t>(u'0' + rest % 10));
        rest /= 10;
        ++count;
    } while (rest != 0);
    return value < 0 ? u"-" + digits : digits;
}

bool IsNumeric(StringView text) {
    double value = 0;
    return ParseDouble(text, value) == Parsed::Number;
}

Long ToLong(StringView text) {
    const double rounded = std::nearbyint(NumberOf(text));
    if (rounded < std::numeric_limits<Long>::min() || rounded > std::numeric_limits<Long>::max())
        throw RuntimeError(ErrorOverflow, u"Number", String(text.substr(0, 64)));
    return static_cast<Long>(rounded);
}

Single ToSingle(StringView text) {
    const double value = NumberOf(text);
    if (std::fabs(value) > static_cast<double>(std::numeric_limits<Single>::max()))
        throw RuntimeError(ErrorOverflow, u"Number", String(text.substr(0, 64)));
    return static_cast<Single>(value);
}

bool ToBoolean(StringView text) {
    const String word = Trim(text);
    if (EqualsNoCase(word, u"True")) return true;
    if (EqualsNoCase(word, u"False")) return false;
    return NumberOf(text) != 0;
}

Byte ToByte(StringView text) {
    const Long value = ToLong(text);
    if (value < 0 || value > 255)
        throw RuntimeError(ErrorOverflow, u"Number", String(text.substr(0, 64)));
    return static_cast<Byte>(value);
}

Long LeadingNumber(StringView text) {
    std::size_t i = 0;
    while (i < text.size() && IsBlank(text[i])) ++i;
    const bool negative = i < text.size() && text[i] == u'-';
    if (i < text.size() && (text[i] == u'-' || text[i] == u'+')) ++i;
    std::int64_t value = 0;
    for (; i < text.size() && text[i] >= u'0' && text[i] <= u'9'; ++i)
        value = std::min<std::int64_t>(value * 10 + (text[i] - u'0'), 0x80000000LL);
    if (negative) value = -value;
    return static_cast<Long>(std::min<std::int64_t>(value, std::numeric_limits<Long>::max()));
}

String Trim(StringView text) {
    while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
    return String(text);
}

String ReplaceAll(StringView text, StringView from, StringView to) {
    String result;
    while (!from.empty()) {
        const std::size_t found = text.find(from);
        if (found == StringView::npos) break;
        result.append(text.substr(0, found)).append(to);
        text.remove_prefix(found + from.size());
    }
    return result.append(text);
}

bool Like(StringView text, StringView pattern) {
    StringView retryText;
    StringView retryPattern;
    bool canRetry = false;
    while (true) {
        if (!pattern.empty() && pattern.front() == u'*') {
            pattern.remove_prefix(1);
            retryText = text;
            retryPattern = pattern;
            canRetry = true;
            continue;
        }
        if (text.empty() && pattern.empty()) return true;
        if (!text.empty() && !pattern.empty() && MatchOne(text.front(), pattern)) {
            text.remove_prefix(1);
            continue;
        }
        if (!canRetry || retryText.empty()) return false;
        retryText.remove_prefix(1);
        text = retryText;
        pattern = retryPattern;
    }
}

}  // namespace tamber

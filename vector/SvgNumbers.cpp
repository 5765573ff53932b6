#include "vector/SvgNumbers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "platform/rounding.h"
#include "vector/SvgScanner.h"

namespace tamber {

namespace {

bool IsDigit(char16_t c) {
    return c >= u'0' && c <= u'9';
}
bool IsSign(char16_t c) {
    return c == u'-' || c == u'+';
}

/// A number without its sign as digits and a power of ten, and where its text ends.
struct Decimal {
    std::uint64_t Digits = 0;
    int Exponent = 0;
    std::size_t End = 0;
};

/// Digits that 64 bits hold for certain; those behind them do not reach a Single.
constexpr std::uint64_t MostDigits = 1'000'000'000'000'000'000;
constexpr int MostExponent = 9999;

void ReadDigits(StringView text, Decimal& number) {
    bool fraction = false;
    for (; number.End < text.size(); ++number.End) {
        const char16_t c = text[number.End];
        if (c == u'.' && !fraction) {
            fraction = true;
            continue;
        }
        if (!IsDigit(c)) return;
        const bool fits = number.Digits < MostDigits;
        if (fits) number.Digits = number.Digits * 10 + (c - u'0');
        if (fits == fraction) number.Exponent += fraction ? -1 : 1;
    }
}

void ReadExponent(StringView text, Decimal& number) {
    std::size_t at = number.End;
    if (at >= text.size() || (text[at] != u'e' && text[at] != u'E')) return;
    ++at;
    const bool negative = at < text.size() && text[at] == u'-';
    if (at < text.size() && IsSign(text[at])) ++at;
    if (at >= text.size() || !IsDigit(text[at])) return;
    int exponent = 0;
    for (; at < text.size() && IsDigit(text[at]); ++at)
        exponent = std::min(exponent * 10 + (text[at] - u'0'), MostExponent);
    number.Exponent += negative ? -exponent : exponent;
    number.End = at;
}

Single ValueOf(const Decimal& number, bool negative) {
    static constexpr std::array<double, 23> Tens{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                 1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
    constexpr double Largest = std::numeric_limits<Single>::max();
    auto value = static_cast<double>(number.Digits);
    if (number.Digits == 0) return 0;
    const auto power = static_cast<std::size_t>(std::abs(number.Exponent));
    if (power >= Tens.size())
        value *= std::pow(10.0, number.Exponent);
    else if (number.Exponent < 0)
        value /= Tens[power];
    else
        value *= Tens[power];
    value = std::min(value, Largest);
    return static_cast<Single>(negative ? -value : value);
}

/// Reads the number at the text's start; `end` gets the place behind it.
Single ReadNumber(StringView text, std::size_t& end) {
    Decimal number;
    const bool negative = !text.empty() && text.front() == u'-';
    if (!text.empty() && IsSign(text.front())) ++number.End;
    ReadDigits(text, number);
    ReadExponent(text, number);
    end = number.End;
    return ValueOf(number, negative);
}

struct Unit {
    StringView Name;
    Single Pixels;
};

constexpr Unit Units[] = {
    {u"pt", 1.25f}, {u"pc", 15}, {u"mm", 3.543307f}, {u"cm", 35.43307f},
    {u"in", 90},    {u"em", 15}, {u"ex", 10.5f},
};

/// The number that a length begins with, and the pixels of its unit.
struct Length {
    Single Number = 0;
    Single Pixels = 1;
};

Length ReadLength(StringView text) {
    std::size_t end = 0;
    while (end < text.size() && (IsDigit(text[end]) || text[end] == u'.' || IsSign(text[end])))
        ++end;
    Length length;
    length.Number = ParseSvgNumber(text.substr(0, end));
    const StringView name = text.substr(end, 2);
    for (const Unit& unit : Units)
        if (name == unit.Name) length.Pixels = unit.Pixels;
    return length;
}

}  // namespace

Long ToSvgTwips(double twips) {
    constexpr double farthest = SvgFarthest;
    if (!(twips > -farthest)) return -SvgFarthest;
    return RoundToLong(std::min(twips, farthest));
}

Long AddSvgTwips(Long a, Long b) {
    const std::int64_t sum = std::int64_t{a} + b;
    return static_cast<Long>(std::clamp<std::int64_t>(sum, -SvgFarthest, SvgFarthest));
}

Single ParseSvgNumber(StringView text) {
    std::size_t end = 0;
    return ReadNumber(text, end);
}

void SvgNumberReader::PassNumber(StringView number) {
    bool exponent = false;
    for (; !AtEnd(); ++position_) {
        const char16_t c = Current();
        if (IsSign(c)) {
            exponent = exponent || number.find_first_of(u"eE") != StringView::npos;
            if (!exponent) return;
        } else if (c == u'e' || c == u'E') {
            exponent = true;
        } else if (!IsDigit(c) && c != u'.') {
            return;
        }
        joined_ = true;
    }
}

bool SvgNumberReader::Next(Long& twips) {
    while (!AtEnd() && (IsSvgSpace(Current()) || Current() == u',')) ++position_;
    if (AtEnd() || (!IsDigit(Current()) && !IsSign(Current()) && Current() != u'.')) return false;
    const StringView rest = text_.substr(position_);
    std::size_t length = 0;
    const Single value = ReadNumber(rest, length);
    position_ += length;
    PassNumber(rest.substr(0, length));
    const Single product = value * TwipsPerPixel;
    twips = ToSvgTwips(product);
    return true;
}

std::vector<Long> ParseSvgNumberList(StringView text) {
    std::vector<Long> numbers;
    SvgNumberReader reader(text);
    for (Long twips = 0; reader.Next(twips);) numbers.push_back(twips);
    return numbers;
}

Long ParseSvgLength(StringView text) {
    const Length length = ReadLength(text);
    return ToSvgTwips(length.Number * (length.Pixels * TwipsPerPixel));
}

Single ParseSvgLengthPercent(StringView text) {
    const Length length = ReadLength(text);
    return HasSvgPercent(text) ? length.Number / 100 : length.Number * length.Pixels;
}

bool HasSvgPercent(StringView text) {
    return !text.empty() && text.back() == u'%';
}

}  // namespace tamber

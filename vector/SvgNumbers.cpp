#include "vector/SvgNumbers.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "vector/SvgScanner.h"

namespace tamber {

namespace {

bool IsSign(char c) {
    return c == '-' || c == '+';
}

/// A number without its sign as digits and a power of ten.
struct Decimal {
    std::uint64_t Digits = 0;
    int Exponent = 0;
};

/// Digits that 64 bits hold for certain; those behind them do not reach a Single.
constexpr std::uint64_t MostDigits = 1'000'000'000'000'000'000;
constexpr int MostExponent = 9999;

/// Reads digits from `at` on and returns the place behind them. The exponent follows the digits
/// that are left out, and in a fraction those that are not.
std::size_t ReadDigits(std::string_view text, std::size_t at, bool fraction, Decimal& number) {
    std::uint64_t digits = number.Digits;
    const std::size_t start = at;
    for (; at < text.size() && IsSvgDigit(text[at]) && digits < MostDigits; ++at)
        digits = digits * 10 + (text[at] - '0');
    const std::size_t kept = at;
    while (at < text.size() && IsSvgDigit(text[at])) ++at;
    number.Digits = digits;
    number.Exponent += fraction ? -static_cast<int>(kept - start) : static_cast<int>(at - kept);
    return at;
}

/// Reads an exponent at `at`, if there is one, and returns the place behind it.
std::size_t ReadExponent(std::string_view text, std::size_t at, Decimal& number) {
    const std::size_t start = at;
    if (at >= text.size() || (text[at] != 'e' && text[at] != 'E')) return start;
    ++at;
    const bool negative = at < text.size() && text[at] == '-';
    if (at < text.size() && IsSign(text[at])) ++at;
    if (at >= text.size() || !IsSvgDigit(text[at])) return start;
    int exponent = 0;
    for (; at < text.size() && IsSvgDigit(text[at]); ++at)
        exponent = std::min(exponent * 10 + (text[at] - '0'), MostExponent);
    number.Exponent += negative ? -exponent : exponent;
    return at;
}

Single ValueOf(const Decimal& number, bool negative) {
    constexpr double Largest = std::numeric_limits<Single>::max();
    if (number.Digits == 0) return 0;
    // The power of ten is exact here, and so is the number in nearly all texts: one rounding.
    auto value = static_cast<double>(static_cast<std::int64_t>(number.Digits));
    const auto power = static_cast<std::size_t>(std::abs(number.Exponent));
    if (power >= SvgTens.size())
        value *= std::pow(10.0, number.Exponent);
    else if (number.Exponent <= 0)
        value /= SvgTens[power];
    else
        value *= SvgTens[power];
    value = std::min(value, Largest);
    return static_cast<Single>(negative ? -value : value);
}

struct Unit {
    std::string_view Name;
    Single Pixels;
};

constexpr Unit Units[] = {
    {"pt", 1.25f}, {"pc", 15}, {"mm", 3.543307f}, {"cm", 35.43307f},
    {"in", 90},    {"em", 15}, {"ex", 10.5f},
};

/// The number that a length begins with, and the pixels of its unit.
struct Length {
    Single Number = 0;
    Single Pixels = 1;
};

Length ReadLength(std::string_view text) {
    std::size_t end = 0;
    while (end < text.size() && (IsSvgDigit(text[end]) || text[end] == '.' || IsSign(text[end])))
        ++end;
    Length length;
    length.Number = ParseSvgNumber(text.substr(0, end));
    const std::string_view name = text.substr(end, 2);
    for (const Unit& unit : Units)
        if (name == unit.Name) length.Pixels = unit.Pixels;
    return length;
}

}  // namespace

Long AddSvgTwips(Long a, Long b) {
    const std::int64_t sum = std::int64_t{a} + b;
    return static_cast<Long>(std::clamp<std::int64_t>(sum, -SvgFarthest, SvgFarthest));
}

Single ParseSvgNumber(std::string_view text, std::size_t* end) {
    Decimal number;
    const bool negative = !text.empty() && text.front() == '-';
    std::size_t at = !text.empty() && IsSign(text.front()) ? 1 : 0;
    at = ReadDigits(text, at, false, number);
    if (at < text.size() && text[at] == '.') at = ReadDigits(text, at + 1, true, number);
    at = ReadExponent(text, at, number);
    if (end != nullptr) *end = at;
    return ValueOf(number, negative);
}

bool SvgNumberReader::NextOdd(Long& twips) {
    if (AtEnd() || !(IsSvgDigit(Current()) || IsSign(Current()) || Current() == '.')) return false;
    const std::string_view rest = text_.substr(position_);
    std::size_t length = 0;
    const Single value = ParseSvgNumber(rest, &length);
    position_ += length;
    PassNumber(rest.substr(0, length));
    twips = ToSvgTwips(value * TwipsPerPixel);
    return true;
}

void SvgNumberReader::PassNumber(std::string_view number) {
    bool exponent = number.find_first_of("eE") != std::string_view::npos;
    for (; !AtEnd(); ++position_) {
        const char c = Current();
        if (c == 'e' || c == 'E')
            exponent = true;
        else if (IsSign(c) ? !exponent : !IsSvgDigit(c) && c != '.')
            return;
        joined_ = true;
    }
}

std::vector<Long> ParseSvgNumberList(std::string_view text) {
    std::vector<Long> numbers;
    SvgNumberReader reader(text);
    for (Long twips = 0; reader.Next(twips);) numbers.push_back(twips);
    return numbers;
}

Long ParseSvgLength(std::string_view text) {
    const Length length = ReadLength(text);
    return ToSvgTwips(length.Number * (length.Pixels * TwipsPerPixel));
}

Single ParseSvgLengthPercent(std::string_view text) {
    const Length length = ReadLength(text);
    return HasSvgPercent(text) ? length.Number / 100 : length.Number * length.Pixels;
}

bool HasSvgPercent(std::string_view text) {
    return !text.empty() && text.back() == '%';
}

}  // namespace tamber

#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "vector/SvgScanner.h"

namespace tamber {

constexpr Long TwipsPerPixel = 20;

/// Coordinates beyond this many twips either way are cut to it, so that sums of a few fit a Long.
constexpr Long SvgFarthest = Long{1} << 29;

/// Rounds half to even; for what a Long holds.
inline Long RoundSvgTwips(double twips) {
    // From 2^52 up a double holds whole numbers only, so that this sum is rounded.
    constexpr double Whole = 3.0 * (std::int64_t{1} << 51);
    return static_cast<Long>((twips + Whole) - Whole);
}
/// Rounds to twips that are not beyond SvgFarthest; no number gives SvgFarthest.
inline Long ToSvgTwips(double twips) {
    constexpr double Farthest = SvgFarthest;
    return RoundSvgTwips(std::max(-Farthest, std::min(Farthest, twips)));
}
/// Sum that is not beyond SvgFarthest.
Long AddSvgTwips(Long a, Long b);

constexpr bool IsSvgDigit(char16_t c) {
    return static_cast<char16_t>(c - u'0') <= 9;
}

/// Powers of ten that a double holds exactly.
inline constexpr std::array<double, 23> SvgTens{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

/// Decimal number that a text begins with, 0 when it begins with none. `end` gets the place behind
/// it.
Single ParseSvgNumber(StringView text, std::size_t* end = nullptr);

/// Reads numbers one by one from a text, as twips of pixels.
class SvgNumberReader {
public:
    explicit SvgNumberReader(StringView text) : text_(text) {}

    /// Next number. False where the list ends; the cursor then stands on the character that ends
    /// it.
    bool Next(Long& twips);

    std::size_t Position() const { return position_; }
    bool AtEnd() const { return position_ >= text_.size(); }
    char16_t Current() const { return text_[position_]; }
    void Advance() { ++position_; }
    /// A number went on behind what counts of it, as "1.5.5" does.
    bool Joined() const { return joined_; }

private:
    /// Next for a number of any form, and for none.
    bool NextOdd(Long& twips);
    /// Moves behind what hangs on to a number: points, exponents, and signs once an exponent was
    /// met.
    void PassNumber(StringView number);

    StringView text_;
    std::size_t position_ = 0;
    bool joined_ = false;
};

// Inline, for half the time of a large drawing is spent here.
inline bool SvgNumberReader::Next(Long& twips) {
    const char16_t* const begin = text_.data();
    const char16_t* const end = begin + text_.size();
    const char16_t* at = begin + position_;
    while (at != end && (*at == u' ' || *at == u',' || IsSvgSpace(*at))) ++at;
    position_ = static_cast<std::size_t>(at - begin);
    const bool negative = at != end && *at == u'-';
    at += negative;
    const char16_t* const first = at;
    std::uint64_t digits = 0;
    for (; at != end && IsSvgDigit(*at); ++at) digits = digits * 10 + (*at - u'0');
    std::ptrdiff_t count = at - first;
    std::ptrdiff_t fraction = 0;
    if (at != end && *at == u'.') {
        const char16_t* const point = at++;
        for (; at != end && IsSvgDigit(*at); ++at) digits = digits * 10 + (*at - u'0');
        fraction = at - point - 1;
        count += fraction;
    }
    // A double holds so many digits exactly, and the quotient is rounded once.
    constexpr std::ptrdiff_t MostCount = 15;
    if (count == 0 || count > MostCount ||
        (at != end && (*at == u'.' || *at == u'e' || *at == u'E')))
        return NextOdd(twips);
    position_ = static_cast<std::size_t>(at - begin);
    const double size = static_cast<double>(static_cast<std::int64_t>(digits)) /
                        SvgTens[static_cast<std::size_t>(fraction)];
    twips = ToSvgTwips(static_cast<Single>(negative ? -size : size) * TwipsPerPixel);
    return true;
}

/// The numbers that a text begins with, as twips of pixels.
std::vector<Long> ParseSvgNumberList(StringView text);

/// Length in twips. Units are at 90 pixels to the inch; a percent sign counts for nothing.
Long ParseSvgLength(StringView text);
/// Length in pixels, or with a final "%" the hundredth of the number.
Single ParseSvgLengthPercent(StringView text);
bool HasSvgPercent(StringView text);

}  // namespace tamber

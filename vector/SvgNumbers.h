#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <span>
#include <vector>

#include "platform/twips.h"
#include "vector/SvgScanner.h"

namespace tamber {

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

constexpr bool IsSvgDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Powers of ten that a double holds exactly.
inline constexpr std::array<double, 23> SvgTens{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

/// Decimal number that a text begins with, 0 when it begins with none. `end` gets the place behind
/// it.
Single ParseSvgNumber(std::string_view text, std::size_t* end = nullptr);

/// Reads numbers one by one from a text, as twips of pixels.
class SvgNumberReader {
public:
    explicit SvgNumberReader(std::string_view text) : text_(text) {}

    /// Next numbers, as many as asked for. False where the list ends before that; the cursor then
    /// stands on the character that ends it.
    bool Next(std::span<Long> twips);
    bool Next(Long& twips) { return Next({&twips, 1}); }

    std::size_t Position() const { return position_; }
    bool AtEnd() const { return position_ >= text_.size(); }
    char Current() const { return text_[position_]; }
    void Advance() { ++position_; }
    /// A number went on behind what counts of it, as "1.5.5" does.
    bool Joined() const { return joined_; }

private:
    /// Reads a number of a few digits, from `at` on, and moves behind it. False, with `at` moved
    /// behind separators only, for any other and near the text's end.
    bool NextShort(const char*& at, Long& twips) const;
    /// Next for a number of any form and for none.
    bool NextOdd(Long& twips);
    /// Moves behind what hangs on to a number: points, exponents, and signs once an exponent was
    /// met.
    void PassNumber(std::string_view number);

    std::string_view text_;
    std::size_t position_ = 0;
    bool joined_ = false;
};

/// Eight characters of a text at once, the first in the lowest byte: digits are counted and joined
/// without a branch for each.
class SvgDigits {
public:
    static constexpr std::size_t Size = 8;

    explicit SvgDigits(const char* text) {
        static_assert(std::endian::native == std::endian::little, "the first is the lowest");
        std::memcpy(&bytes_, text, Size);
        // The top bit of each sum tells whether the byte is above; a carry comes only from bytes
        // beyond ASCII, which are outside already.
        const std::uint64_t above = (bytes_ + Each * (0x80 - '9' - 1)) | bytes_;
        const std::uint64_t below = ~(bytes_ + Each * (0x80 - '.'));
        length_ = FirstOf((above | below) & TopBits);
        const std::uint64_t belowDigits = ~(bytes_ + Each * (0x80 - '0'));
        const std::uint64_t within =
            length_ == Size ? TopBits : ((std::uint64_t{1} << 8 * length_) - 1) & TopBits;
        points_ = belowDigits & within;
    }
    /// How many of '.', '/' and digits it begins with; Size when all are.
    std::size_t Length() const { return length_; }
    /// One of these is no digit.
    bool HasPoint() const { return points_ != 0; }
    bool HasPoints() const { return (points_ & (points_ - 1)) != 0; }
    /// Place of the first that is no digit, or Length.
    std::size_t Point() const { return std::min(FirstOf(points_), length_); }
    /// Value of the first `count` digits, fewer than Size, without the point before or among them.
    std::uint64_t Value(std::size_t count) const {
        const std::uint64_t point = points_ & (0 - points_);
        const std::uint64_t before = (point >> 7) - 1;
        const std::uint64_t behind = ~((point << 1) - 1);
        // What stands before the point moves up over it, and all to the top, zeros before it. Then
        // pairs of digits join, and pairs of these.
        const std::uint64_t values = bytes_ ^ Each * '0';
        std::uint64_t digits = (values & before) << 8 | (values & behind);
        digits <<= 8 * (Size - 1 - count);
        digits = digits * 10 + (digits >> 8);
        constexpr std::uint64_t Pairs = 0x000000FF000000FF;
        constexpr std::uint64_t Hundreds = 100 + (std::uint64_t{1000000} << 32);
        constexpr std::uint64_t Ones = 1 + (std::uint64_t{10000} << 32);
        return ((digits & Pairs) * Hundreds + (digits >> 16 & Pairs) * Ones) >> 32;
    }

private:
    static constexpr std::uint64_t Each = 0x0101010101010101;
    static constexpr std::uint64_t TopBits = Each * 0x80;

    static std::size_t FirstOf(std::uint64_t marks) {
        return static_cast<std::size_t>(std::countr_zero(marks)) / 8;
    }

    std::uint64_t bytes_ = 0;
    std::uint64_t points_ = 0;
    std::size_t length_ = 0;
};

// Inline, for half the time of a large drawing is spent here.
inline bool SvgNumberReader::Next(std::span<Long> twips) {
    const char* const begin = text_.data();
    const char* at = begin + position_;
    for (Long& value : twips) {
        if (NextShort(at, value)) continue;
        position_ = static_cast<std::size_t>(at - begin);
        if (!NextOdd(value)) return false;
        at = begin + position_;
    }
    position_ = static_cast<std::size_t>(at - begin);
    return true;
}

inline bool SvgNumberReader::NextShort(const char*& at, Long& twips) const {
    const char* const end = text_.data() + text_.size();
    while (at != end && (*at == ' ' || *at == ',' || IsSvgSpace(*at))) ++at;
    constexpr std::ptrdiff_t Longest = 1 + SvgDigits::Size;
    if (end - at < Longest) return false;
    const bool negative = *at == '-';
    const char* const first = at + negative;
    const SvgDigits window(first);
    const std::size_t length = window.Length();
    const std::size_t whole = window.Point();
    const std::size_t count = length - (window.HasPoint() ? 1 : 0);
    if (length == SvgDigits::Size || count == 0 || window.HasPoints() || first[whole] == '/' ||
        first[length] == 'e' || first[length] == 'E')
        return false;
    at = first + length;
    // The quotient is rounded once, and so few digits do not come near SvgFarthest.
    const auto digits = static_cast<std::int64_t>(window.Value(count));
    const double number = static_cast<double>(negative ? -digits : digits) / SvgTens[count - whole];
    twips = RoundSvgTwips(static_cast<Single>(number) * TwipsPerPixel);
    return true;
}

/// The numbers that a text begins with, as twips of pixels.
std::vector<Long> ParseSvgNumberList(std::string_view text);

/// Length in twips. Units are at 90 pixels to the inch; a percent sign counts for nothing.
Long ParseSvgLength(std::string_view text);
/// Length in pixels, or with a final "%" the hundredth of the number.
Single ParseSvgLengthPercent(std::string_view text);
bool HasSvgPercent(std::string_view text);

}  // namespace tamber

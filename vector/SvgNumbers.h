#pragma once

#include <vector>

#include "platform/types.h"

namespace tamber {

constexpr Long TwipsPerPixel = 20;

/// Coordinates beyond this many twips either way are cut to it, so that sums of a few fit a Long.
constexpr Long SvgFarthest = Long{1} << 29;

/// Rounds to twips that are not beyond SvgFarthest.
Long ToSvgTwips(double twips);
/// Sum that is not beyond SvgFarthest.
Long AddSvgTwips(Long a, Long b);

/// Decimal number that a text begins with, 0 when it begins with none.
Single ParseSvgNumber(StringView text);

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
    /// Moves behind what hangs on to a number: points, exponents, and signs once an exponent was
    /// met.
    void PassNumber(StringView number);

    StringView text_;
    std::size_t position_ = 0;
    bool joined_ = false;
};

/// The numbers that a text begins with, as twips of pixels.
std::vector<Long> ParseSvgNumberList(StringView text);

/// Length in twips. Units are at 90 pixels to the inch; a percent sign counts for nothing.
Long ParseSvgLength(StringView text);
/// Length in pixels, or with a final "%" the hundredth of the number.
Single ParseSvgLengthPercent(StringView text);
bool HasSvgPercent(StringView text);

}  // namespace tamber

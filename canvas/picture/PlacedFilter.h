#pragma once

#include <array>
#include <variant>
#include <vector>

#include "canvas/picture/PictureColor.h"
#include "swf/SwfBits.h"

namespace tamber {

/// A filter of a placement; lengths in pixels of the stage.
struct BlurFilter {
    double BlurX = 0;
    double BlurY = 0;
    Long Passes = 0;
    bool operator==(const BlurFilter&) const = default;
};

/// A glow, or a shadow that falls where `Angle` (radians) and `Distance` say.
struct GlowFilter {
    PictureColor Color;
    BlurFilter Blur;
    double Angle = 0;
    double Distance = 0;
    double Strength = 1;
    bool blInner = false;
    bool blKnockout = false;
    /// The object itself is seen.
    bool blCompositeSource = true;
    bool operator==(const GlowFilter&) const = default;
};

struct BevelFilter {
    PictureColor Shadow;
    PictureColor Highlight;
    BlurFilter Blur;
    double Angle = 0;
    double Distance = 0;
    double Strength = 1;
    bool blInner = false;
    bool blKnockout = false;
    /// The bevel lies on both sides of the edge.
    bool blOnTop = false;
    bool operator==(const BevelFilter&) const = default;
};

struct ConvolutionFilter {
    Long Columns = 0;
    Long Rows = 0;
    double Divisor = 1;
    double Bias = 0;
    std::vector<double> Matrix;
    /// Beyond the edges, unless those are continued.
    PictureColor Default;
    bool blClamp = false;
    bool blPreserveAlpha = false;
    bool operator==(const ConvolutionFilter&) const = default;
};

/// For red, green, blue and opacity each: what of the four it takes, and what of 255 is added.
struct ColorMatrixFilter {
    std::array<double, 20> Matrix{};
    bool operator==(const ColorMatrixFilter&) const = default;
};

using PlacedFilter =
    std::variant<BlurFilter, GlowFilter, BevelFilter, ConvolutionFilter, ColorMatrixFilter>;

/// Reads a FILTERLIST: a count, then for each a kind and its values. Gradient filters, which the
/// program never writes, are passed over. Damage raises a RuntimeError.
std::vector<PlacedFilter> ReadFilterList(SwfBits& bits);

/// Pixels that filters, one behind the other, reach beyond what they are applied to.
struct FilterMargin {
    double Left = 0;
    double Top = 0;
    double Right = 0;
    double Bottom = 0;
};

/// `scale`: pixels for a pixel of the stage.
FilterMargin MarginOf(const std::vector<PlacedFilter>& filters, double scale);

}  // namespace tamber

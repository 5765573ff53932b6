#include "canvas/picture/PlacedFilter.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "canvas/picture/MovieValues.h"
#include "platform/RuntimeError.h"

namespace tamber {

namespace {

enum FilterId : std::uint32_t {
    DropShadow = 0,
    Blur = 1,
    Glow = 2,
    Bevel = 3,
    GradientGlow = 4,
    Convolution = 5,
    ColorMatrix = 6,
    GradientBevel = 7,
};

enum FilterFlag : std::uint32_t { Inner = 128, Knockout = 64, CompositeSource = 32, OnTop = 16 };

constexpr std::uint32_t ShadowPasses = 31;
constexpr std::uint32_t BevelPasses = 15;
constexpr Long BlurPassesShift = 3;
constexpr std::uint32_t ConvolutionClamp = 2;
constexpr std::uint32_t ConvolutionPreserves = 1;
/// Of a gradient filter, behind its colours and their places.
constexpr std::size_t GradientRest = 19;
/// Pixels of the stage.
constexpr double FarthestShadow = 512;

double ReadFixed16(SwfBits& bits) {
    return static_cast<std::int32_t>(bits.GetUI(4)) / 65536.0;
}

double ReadFixed8(SwfBits& bits) {
    return static_cast<std::int16_t>(bits.GetUI(2)) / 256.0;
}

/// What is no number counts as 0.
double ReadFloat(SwfBits& bits) {
    const float value = std::bit_cast<float>(bits.GetUI(4));
    return std::isfinite(value) ? double(value) : 0;
}

BlurFilter ReadBlurSize(SwfBits& bits) {
    constexpr double Largest = 255;
    BlurFilter blur;
    blur.BlurX = std::clamp(ReadFixed16(bits), 0.0, Largest);
    blur.BlurY = std::clamp(ReadFixed16(bits), 0.0, Largest);
    return blur;
}

BlurFilter ReadBlur(SwfBits& bits) {
    BlurFilter blur = ReadBlurSize(bits);
    blur.Passes = static_cast<Long>(bits.GetUI(1) >> BlurPassesShift);
    return blur;
}

template <class Filter>
std::uint32_t ReadCommon(SwfBits& bits, Filter& filter, bool hasPlace) {
    filter.Blur = ReadBlurSize(bits);
    if (hasPlace) {
        filter.Angle = ReadFixed16(bits);
        // No shadow that falls farther is seen beside its object, and room would be made for it.
        filter.Distance = std::clamp(ReadFixed16(bits), -FarthestShadow, FarthestShadow);
    }
    filter.Strength = ReadFixed8(bits);
    const std::uint32_t flags = bits.GetUI(1);
    filter.blInner = (flags & Inner) != 0;
    filter.blKnockout = (flags & Knockout) != 0;
    return flags;
}

GlowFilter ReadGlow(SwfBits& bits, bool isShadow) {
    GlowFilter glow;
    glow.Color = ReadColor(bits, true);
    const std::uint32_t flags = ReadCommon(bits, glow, isShadow);
    glow.blCompositeSource = (flags & CompositeSource) != 0;
    glow.Blur.Passes = static_cast<Long>(flags & ShadowPasses);
    return glow;
}

BevelFilter ReadBevel(SwfBits& bits) {
    BevelFilter bevel;
    // As players read it; the published form of the file has the two the other way round.
    bevel.Highlight = ReadColor(bits, true);
    bevel.Shadow = ReadColor(bits, true);
    const std::uint32_t flags = ReadCommon(bits, bevel, true);
    bevel.blOnTop = (flags & OnTop) != 0;
    bevel.Blur.Passes = static_cast<Long>(flags & BevelPasses);
    return bevel;
}

ConvolutionFilter ReadConvolution(SwfBits& bits) {
    ConvolutionFilter filter;
    filter.Columns = static_cast<Long>(bits.GetUI(1));
    filter.Rows = static_cast<Long>(bits.GetUI(1));
    filter.Divisor = ReadFloat(bits);
    filter.Bias = ReadFloat(bits);
    for (Long i = filter.Columns * filter.Rows; i > 0; --i)
        filter.Matrix.push_back(ReadFloat(bits));
    filter.Default = ReadColor(bits, true);
    const std::uint32_t flags = bits.GetUI(1);
    filter.blClamp = (flags & ConvolutionClamp) != 0;
    filter.blPreserveAlpha = (flags & ConvolutionPreserves) != 0;
    return filter;
}

ColorMatrixFilter ReadColorMatrix(SwfBits& bits) {
    ColorMatrixFilter filter;
    for (double& value : filter.Matrix) value = ReadFloat(bits);
    return filter;
}

void ReadFilter(SwfBits& bits, std::vector<PlacedFilter>& filters) {
    switch (bits.GetUI(1)) {
        case DropShadow:
            filters.push_back(ReadGlow(bits, true));
            break;
        case Blur:
            filters.push_back(ReadBlur(bits));
            break;
        case Glow:
            filters.push_back(ReadGlow(bits, false));
            break;
        case Bevel:
            filters.push_back(ReadBevel(bits));
            break;
        case Convolution:
            filters.push_back(ReadConvolution(bits));
            break;
        case ColorMatrix:
            filters.push_back(ReadColorMatrix(bits));
            break;
        case GradientGlow:
        case GradientBevel:
            bits.Take(std::size_t{5} * bits.GetUI(1) + GradientRest);
            break;
        default:
            throw RuntimeError(ErrorOutOfRange, u"ReadFilterList", u"");
    }
}

void Grow(FilterMargin& margin, double x, double y) {
    margin.Left += x;
    margin.Right += x;
    margin.Top += y;
    margin.Bottom += y;
}

void GrowBlur(FilterMargin& margin, const BlurFilter& blur, double scale) {
    const auto reach = [&](double size) { return std::ceil(size * scale / 2) * blur.Passes; };
    Grow(margin, reach(blur.BlurX), reach(blur.BlurY));
}

struct MarginGrower {
    FilterMargin& Margin;
    double Scale;

    void operator()(const BlurFilter& blur) const { GrowBlur(Margin, blur, Scale); }
    // What glows within does not grow, but its blur needs the room.
    void operator()(const GlowFilter& glow) const { Shifted(glow); }
    void operator()(const BevelFilter& bevel) const { Shifted(bevel); }
    void operator()(const ConvolutionFilter& filter) const {
        if (!filter.blPreserveAlpha) Grow(Margin, filter.Columns, filter.Rows);
    }
    void operator()(const ColorMatrixFilter&) const {}

    template <class Filter>
    void Shifted(const Filter& filter) const {
        GrowBlur(Margin, filter.Blur, Scale);
        const double far = std::ceil(std::abs(filter.Distance) * Scale);
        Grow(Margin, far, far);
    }
};

}  // namespace

std::vector<PlacedFilter> ReadFilterList(SwfBits& bits) {
    std::vector<PlacedFilter> filters;
    for (std::uint32_t count = bits.GetUI(1); count > 0; --count) ReadFilter(bits, filters);
    return filters;
}

FilterMargin MarginOf(const std::vector<PlacedFilter>& filters, double scale) {
    FilterMargin margin;
    for (const PlacedFilter& filter : filters) std::visit(MarginGrower{margin, scale}, filter);
    return margin;
}

}  // namespace tamber

#include "canvas/picture/RasterFilters.h"

#include <algorithm>
#include <cmath>

#include "canvas/picture/BoxBlur.h"
#include "canvas/picture/RasterColors.h"

namespace tamber {

namespace {

/// Of a convolution; those that the program writes, of 5 by 5, stay far below on any stage.
constexpr std::size_t MostProducts = std::size_t{1} << 27;

/// A byte a pixel.
class AlphaPlane {
public:
    AlphaPlane(const Raster& raster)
        : width_(raster.Width()), height_(raster.Height()), alpha_(raster.Pixels().size()) {
        std::transform(raster.Pixels().begin(), raster.Pixels().end(), alpha_.begin(),
                       [](std::uint32_t pixel) { return static_cast<Byte>(pixel >> 24); });
    }

    void Blur(const BlurFilter& blur, double scale) {
        BoxBlur({alpha_.data(), width_, height_, 1}, blur.BlurX * scale, blur.BlurY * scale,
                blur.Passes);
    }
    /// 0 outside.
    Byte At(Long x, Long y) const {
        if (x < 0 || y < 0 || x >= width_ || y >= height_) return 0;
        return alpha_[std::size_t(y) * std::size_t(width_) + std::size_t(x)];
    }
    /// Between the four pixels around a place, 0 to 255.
    double Between(double x, double y) const {
        const double left = std::floor(x);
        const double top = std::floor(y);
        const auto column = static_cast<Long>(left);
        const auto row = static_cast<Long>(top);
        const double shareX = x - left;
        const double shareY = y - top;
        const auto along = [&](Long at) {
            return At(column, at) * (1 - shareX) + At(column + 1, at) * shareX;
        };
        return along(row) * (1 - shareY) + (shareY > 0 ? along(row + 1) * shareY : 0);
    }

private:
    Long width_;
    Long height_;
    std::vector<Byte> alpha_;
};

/// A premultiplied colour, each part 0 to 1.
struct Light {
    double A = 0;
    double R = 0;
    double G = 0;
    double B = 0;

    static Light Of(std::uint32_t pixel) {
        constexpr double One = 255;
        return {(pixel >> 24) / One, (pixel >> 16 & 255) / One, (pixel >> 8 & 255) / One,
                (pixel & 255) / One};
    }
    static Light Of(PictureColor color) {
        constexpr double One = 255;
        const double a = color.A / One;
        return {a, color.R / One * a, color.G / One * a, color.B / One * a};
    }
    Light operator*(double by) const { return {A * by, R * by, G * by, B * by}; }
    Light operator+(const Light& other) const {
        return {A + other.A, R + other.R, G + other.G, B + other.B};
    }
    /// In front of another.
    Light Over(const Light& other) const { return *this + other * (1 - A); }
    std::uint32_t Pixel() const {
        const auto part = [](double value) {
            return static_cast<std::uint32_t>(std::clamp(value, 0.0, 1.0) * 255 + 0.5);
        };
        return part(A) << 24 | part(R) << 16 | part(G) << 8 | part(B);
    }
};

Raster Grown(const Raster& source, Long left, Long top, Long right, Long bottom) {
    Raster grown(source.Width() + left + right, source.Height() + top + bottom);
    for (Long y = 0; y < source.Height(); ++y)
        std::copy_n(source.Row(y), source.Width(), grown.Row(y + top) + left);
    return grown;
}

/// The shift of a shadow, pixels.
template <class Filter>
std::pair<double, double> Shift(const Filter& filter, double scale) {
    const double far = filter.Distance * scale;
    return {std::cos(filter.Angle) * far, std::sin(filter.Angle) * far};
}

class FilterApplier {
public:
    FilterApplier(Raster& raster, double scale) : raster_(raster), scale_(scale) {}

    void operator()(const BlurFilter& blur) const {
        // Bytes of a pixel are blurred alike, whatever their order.
        BoxBlur({reinterpret_cast<Byte*>(raster_.Pixels().data()), raster_.Width(),
                 raster_.Height(), 4},
                blur.BlurX * scale_, blur.BlurY * scale_, blur.Passes);
    }

    void operator()(const GlowFilter& glow) const {
        AlphaPlane blurred(raster_);
        blurred.Blur(glow.Blur, scale_);
        const auto [dx, dy] = Shift(glow, scale_);
        const Light color = Light::Of(glow.Color);
        ForEach([&, dx = dx, dy = dy](Long x, Long y, const Light& source) {
            const double there = blurred.Between(x - dx, y - dy) / 255;
            const double shown = glow.blInner ? 1 - there : there;
            return Glowing(glow, source, color * std::clamp(shown * glow.Strength, 0.0, 1.0));
        });
    }

    void operator()(const BevelFilter& bevel) const {
        AlphaPlane blurred(raster_);
        blurred.Blur(bevel.Blur, scale_);
        const auto [dx, dy] = Shift(bevel, scale_);
        const Light highlight = Light::Of(bevel.Highlight);
        const Light shadow = Light::Of(bevel.Shadow);
        ForEach([&, dx = dx, dy = dy](Long x, Long y, const Light& source) {
            const double rise =
                (blurred.Between(x + dx, y + dy) - blurred.Between(x - dx, y - dy)) / 255;
            const double strength = std::clamp(std::abs(rise) * bevel.Strength, 0.0, 1.0);
            return Bevelled(bevel, source, (rise > 0 ? highlight : shadow) * strength);
        });
    }

    void operator()(const ConvolutionFilter& filter) const {
        if (filter.Matrix.empty() || filter.Divisor == 0 ||
            filter.Matrix.size() * raster_.Pixels().size() > MostProducts)
            return;
        const Raster source = raster_;
        for (Long y = 0; y < raster_.Height(); ++y)
            for (Long x = 0; x < raster_.Width(); ++x)
                raster_.Row(y)[x] = Convolved(filter, source, x, y);
    }

    void operator()(const ColorMatrixFilter& filter) const {
        const auto& m = filter.Matrix;
        for (std::uint32_t& pixel : raster_.Pixels()) {
            const auto [r, g, b, a] = Unmultiplied(pixel);
            const auto row = [&, r = r, g = g, b = b, a = a](std::size_t at) {
                return m[at] * r + m[at + 1] * g + m[at + 2] * b + m[at + 3] * a + m[at + 4];
            };
            pixel = Multiplied({row(0), row(5), row(10), row(15)});
        }
    }

private:
    template <class Change>
    void ForEach(Change change) const {
        for (Long y = 0; y < raster_.Height(); ++y) {
            std::uint32_t* row = raster_.Row(y);
            for (Long x = 0; x < raster_.Width(); ++x)
                row[x] = change(x, y, Light::Of(row[x])).Pixel();
        }
    }

    static Light Glowing(const GlowFilter& glow, const Light& source, const Light& light) {
        if (!glow.blInner) {
            if (glow.blKnockout) return light * (1 - source.A);
            return glow.blCompositeSource ? source.Over(light) : light;
        }
        const Light within = light * source.A;
        if (glow.blKnockout || !glow.blCompositeSource) return within;
        return source * (1 - light.A) + within;
    }

    static Light Bevelled(const BevelFilter& bevel, const Light& source, const Light& light) {
        if (bevel.blOnTop) return bevel.blKnockout ? light : light.Over(source);
        if (!bevel.blInner) {
            const Light outside = light * (1 - source.A);
            return bevel.blKnockout ? outside : source + outside;
        }
        const Light within = light * source.A;
        return bevel.blKnockout ? within : source * (1 - light.A) + within;
    }

    static std::uint32_t Convolved(const ConvolutionFilter& filter, const Raster& source, Long x,
                                   Long y) {
        std::array<double, 4> sum{};
        const double* weight = filter.Matrix.data();
        for (Long row = 0; row < filter.Rows; ++row) {
            for (Long column = 0; column < filter.Columns; ++column, ++weight) {
                const auto parts = PartsAt(filter, source, x + column - filter.Columns / 2,
                                           y + row - filter.Rows / 2);
                for (std::size_t i = 0; i < sum.size(); ++i) sum[i] += parts[i] * *weight;
            }
        }
        for (double& part : sum) part = part / filter.Divisor + filter.Bias;
        if (filter.blPreserveAlpha) sum[3] = source.Row(y)[x] >> 24;
        return Multiplied(sum);
    }

    static std::array<double, 4> PartsAt(const ConvolutionFilter& filter, const Raster& source,
                                         Long x, Long y) {
        const Long heldX = std::clamp(x, 0, source.Width() - 1);
        const Long heldY = std::clamp(y, 0, source.Height() - 1);
        if (filter.blClamp || (heldX == x && heldY == y))
            return Unmultiplied(source.Row(heldY)[heldX]);
        const PictureColor& color = filter.Default;
        return {double(color.R), double(color.G), double(color.B), double(color.A)};
    }

    Raster& raster_;
    double scale_;
};

}  // namespace

FilteredRaster ApplyFilters(const Raster& source, const std::vector<PlacedFilter>& filters,
                            double scale) {
    FilteredRaster made{source, 0, 0};
    for (const PlacedFilter& filter : filters) {
        const FilterMargin margin = MarginOf({filter}, scale);
        const auto left = static_cast<Long>(margin.Left);
        const auto top = static_cast<Long>(margin.Top);
        if (left > 0 || top > 0)
            made.Pixels = Grown(made.Pixels, left, top, static_cast<Long>(margin.Right),
                                static_cast<Long>(margin.Bottom));
        made.Left -= left;
        made.Top -= top;
        std::visit(FilterApplier(made.Pixels, scale), filter);
    }
    return made;
}

}  // namespace tamber

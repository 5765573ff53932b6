#include "canvas/picture/GradientPattern.h"

#include <algorithm>
#include <cmath>

namespace tamber {

namespace {

/// Half the side of the square that a gradient lies in, in a movie, and here: cairo's numbers hold
/// repetitions of small squares alone.
constexpr double MovieReach = 16384;
constexpr double Reach = 256;
/// A focal point on the rim itself leaves half of the plane without a colour.
constexpr double FarthestFocus = 0.98;
constexpr double One = 255;
/// Pieces that stand for a curve between two colours.
constexpr int LightSteps = 16;

void AddStop(cairo_pattern_t* pattern, double offset, double r, double g, double b, double a) {
    cairo_pattern_add_color_stop_rgba(pattern, offset, r, g, b, a);
}

double ToLight(double value) {
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double FromLight(double value) {
    return value <= 0.0031308 ? value * 12.92 : 1.055 * std::pow(value, 1 / 2.4) - 0.055;
}

double MixedLight(Byte from, Byte to, double ratio) {
    const double light = ToLight(from / One);
    return FromLight(light + (ToLight(to / One) - light) * ratio);
}

void AddLightStops(cairo_pattern_t* pattern, const GradientStop& from, const GradientStop& to) {
    for (int i = 1; i < LightSteps; ++i) {
        const double ratio = double(i) / LightSteps;
        const PictureColor& a = from.Color;
        const PictureColor& b = to.Color;
        AddStop(pattern, (from.Ratio + (to.Ratio - from.Ratio) * ratio) / One,
                MixedLight(a.R, b.R, ratio), MixedLight(a.G, b.G, ratio),
                MixedLight(a.B, b.B, ratio), (a.A + (b.A - a.A) * ratio) / One);
    }
}

}  // namespace

PatternPointer GradientPattern(const PictureFill& fill) {
    cairo_matrix_t matrix = fill.Matrix;
    cairo_matrix_scale(&matrix, MovieReach / Reach, MovieReach / Reach);
    if (fill.Stops.empty() || cairo_matrix_invert(&matrix) != CAIRO_STATUS_SUCCESS) return nullptr;
    const double focus = std::clamp(fill.Focal, -FarthestFocus, FarthestFocus) * Reach;
    PatternPointer pattern(fill.What == PictureFill::Kind::Linear
                               ? cairo_pattern_create_linear(-Reach, 0, Reach, 0)
                               : cairo_pattern_create_radial(focus, 0, 0, 0, 0, Reach));
    cairo_pattern_set_matrix(pattern.get(), &matrix);
    cairo_pattern_set_extend(pattern.get(), fill.Spread);
    for (std::size_t i = 0; i < fill.Stops.size(); ++i) {
        const GradientStop& stop = fill.Stops[i];
        if (i > 0 && fill.blLinearLight) AddLightStops(pattern.get(), fill.Stops[i - 1], stop);
        AddStop(pattern.get(), stop.Ratio / One, stop.Color.R / One, stop.Color.G / One,
                stop.Color.B / One, stop.Color.A / One);
    }
    return pattern;
}

}  // namespace tamber

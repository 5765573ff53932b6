#include "canvas/picture/RasterColors.h"

#include <algorithm>

namespace tamber {

namespace {

constexpr double One = 255;
using Table = std::array<Byte, 256>;

Table TableOf(Long mult, Long add) {
    Table table;
    for (Long value = 0; value < 256; ++value)
        table[static_cast<std::size_t>(value)] =
            static_cast<Byte>(std::clamp(value * mult / 256 + add, 0, 255));
    return table;
}

/// Opaque pixels, of which pictures mostly consist, need no division.
std::uint32_t Part(std::uint32_t pixel, int shift, std::uint32_t alpha) {
    const std::uint32_t value = pixel >> shift & 255;
    return alpha == 255 ? value : std::min(value * 255 / alpha, std::uint32_t{255});
}

std::uint32_t Times(std::uint32_t value, std::uint32_t alpha) {
    return (value * alpha + 127) / 255;
}

}  // namespace

std::array<double, 4> Unmultiplied(std::uint32_t pixel) {
    const double alpha = pixel >> 24;
    if (alpha == 0) return {0, 0, 0, 0};
    const double factor = One / alpha;
    return {(pixel >> 16 & 255) * factor, (pixel >> 8 & 255) * factor, (pixel & 255) * factor,
            alpha};
}

std::uint32_t Multiplied(const std::array<double, 4>& parts) {
    const auto held = [](double value) { return std::clamp(value, 0.0, One); };
    const double alpha = held(parts[3]);
    const auto byte = [](double value) { return static_cast<std::uint32_t>(value + 0.5); };
    const auto times = [&](double value) { return byte(held(value) * alpha / One); };
    return byte(alpha) << 24 | times(parts[0]) << 16 | times(parts[1]) << 8 | times(parts[2]);
}

void ApplyColors(Raster& raster, const SwfColorTransform& colors) {
    if (colors == SwfColorTransform()) return;
    const Table red = TableOf(colors.MultR, colors.AddR);
    const Table green = TableOf(colors.MultG, colors.AddG);
    const Table blue = TableOf(colors.MultB, colors.AddB);
    const Table alpha = TableOf(colors.MultA, colors.AddA);
    for (std::uint32_t& pixel : raster.Pixels()) {
        const std::uint32_t was = pixel >> 24;
        if (was == 0) continue;
        const std::uint32_t is = alpha[was];
        pixel = is << 24 | Times(red[Part(pixel, 16, was)], is) << 16 |
                Times(green[Part(pixel, 8, was)], is) << 8 | Times(blue[Part(pixel, 0, was)], is);
    }
}

}  // namespace tamber

#include "canvas/picture/RasterBlend.h"

#include <algorithm>
#include <cstdlib>

namespace tamber {

namespace {

/// Parts of a pixel at a byte each.
int Part(std::uint32_t pixel, int shift) {
    return static_cast<int>(pixel >> shift & 255);
}

int Times(int a, int b) {
    return (a * b + 127) / 255;
}

/// A part of a colour without its opacity.
int Plain(int part, int alpha) {
    return alpha == 0 ? 0 : std::min(part * 255 / alpha, 255);
}

int HardLight(int above, int below) {
    return above < 128 ? Times(2 * above, below) : 255 - Times(2 * (255 - above), 255 - below);
}

/// What becomes of two plain parts that cover each other.
int Mix(BlendMode mode, int above, int below) {
    switch (mode) {
        case BlendMode::Multiply:
            return Times(above, below);
        case BlendMode::Screen:
            return above + below - Times(above, below);
        case BlendMode::Lighten:
            return std::max(above, below);
        case BlendMode::Darken:
            return std::min(above, below);
        case BlendMode::Difference:
            return std::abs(above - below);
        case BlendMode::Overlay:
            return HardLight(below, above);
        case BlendMode::HardLight:
            return HardLight(above, below);
        default:
            return above;
    }
}

std::uint32_t Scaled(std::uint32_t pixel, int by) {
    std::uint32_t scaled = 0;
    for (int shift = 0; shift < 32; shift += 8)
        scaled |= static_cast<std::uint32_t>(Times(Part(pixel, shift), by)) << shift;
    return scaled;
}

/// Puts a pixel together of its opacity and of what a function gives for each colour.
template <class Colour>
std::uint32_t Joined(int alpha, Colour colour) {
    std::uint32_t pixel = static_cast<std::uint32_t>(alpha) << 24;
    for (int shift = 0; shift < 24; shift += 8)
        pixel |= static_cast<std::uint32_t>(std::clamp(colour(shift), 0, 255)) << shift;
    return pixel;
}

std::uint32_t Mixed(BlendMode mode, std::uint32_t above, std::uint32_t below) {
    const int a = Part(above, 24);
    const int b = Part(below, 24);
    if (mode == BlendMode::Alpha) return Scaled(below, a);
    if (mode == BlendMode::Erase) return Scaled(below, 255 - a);
    const int alpha = a + b - Times(a, b);
    switch (mode) {
        case BlendMode::Add:
            return Joined(std::min(a + b, 255),
                          [&](int at) { return Part(above, at) + Part(below, at); });
        case BlendMode::Subtract:
            return Joined(alpha, [&](int at) { return Part(below, at) - Part(above, at); });
        case BlendMode::Invert:
            return Joined(b, [&](int at) {
                return Times(a, b - Part(below, at)) + Times(255 - a, Part(below, at));
            });
        default:
            return Joined(alpha, [&](int at) {
                const int up = Part(above, at);
                const int down = Part(below, at);
                const int both = Times(Times(a, b), Mix(mode, Plain(up, a), Plain(down, b)));
                return Times(up, 255 - b) + Times(down, 255 - a) + both;
            });
    }
}

std::uint32_t Over(std::uint32_t above, std::uint32_t below) {
    const int a = Part(above, 24);
    return a == 255 ? above : above + Scaled(below, 255 - a);
}

template <class Pixel>
void ForEachPixel(Raster& below, const Raster& above, Long x, Long y, const PaintBox& clip,
                  Pixel pixel) {
    const auto left = std::max(x, static_cast<Long>(clip.Left));
    const auto right = std::min(x + above.Width(), static_cast<Long>(clip.Right));
    const auto top = std::max(y, static_cast<Long>(clip.Top));
    const auto bottom = std::min(y + above.Height(), static_cast<Long>(clip.Bottom));
    for (Long row = top; row < bottom; ++row) {
        const std::uint32_t* from = above.Row(row - y) - x;
        std::uint32_t* to = below.Row(row);
        for (Long column = left; column < right; ++column)
            to[column] = pixel(from[column], to[column]);
    }
}

}  // namespace

void Blend(Raster& below, const Raster& above, Long x, Long y, BlendMode mode,
           const PaintBox& clip) {
    if (mode <= BlendMode::Layer || mode > BlendMode::HardLight) {
        ForEachPixel(below, above, x, y, clip,
                     [](std::uint32_t up, std::uint32_t down) { return Over(up, down); });
        return;
    }
    // What the placement does not cover goes, too.
    if (mode == BlendMode::Alpha) {
        Raster cover(below.Width(), below.Height());
        ForEachPixel(cover, above, x, y, clip, [](std::uint32_t up, std::uint32_t) { return up; });
        for (std::size_t i = 0; i < below.Pixels().size(); ++i)
            below.Pixels()[i] = Scaled(below.Pixels()[i], Part(cover.Pixels()[i], 24));
        return;
    }
    ForEachPixel(below, above, x, y, clip, [mode](std::uint32_t up, std::uint32_t down) {
        return up == 0 ? down : Mixed(mode, up, down);
    });
}

}  // namespace tamber

#include <gtest/gtest.h>

#include "canvas/picture/BoxBlur.h"
#include "canvas/picture/RasterBlend.h"
#include "canvas/picture/RasterColors.h"
#include "canvas/picture/RasterFilters.h"
#include "platform/RuntimeError.h"

namespace tamber {
namespace {

constexpr std::uint32_t Black = 0xFF000000;
constexpr std::uint32_t White = 0xFFFFFFFF;

Raster OnePixel(std::uint32_t pixel) {
    Raster raster(1, 1);
    raster.Row(0)[0] = pixel;
    return raster;
}

TEST(BoxBlur, spreads_a_pixel_by_the_size_of_its_box) {
    const auto blurred = [](Bytes row, double size, Long passes) {
        BoxBlur({row.data(), static_cast<Long>(row.size()), 1, 1}, size, 1, passes);
        return row;
    };
    const Bytes row{0, 0, 255, 0, 0};
    EXPECT_EQ(blurred(row, 3, 1), (Bytes{0, 85, 85, 85, 0}));
    // A box of two pixels: the middle one, and half of each neighbour.
    EXPECT_EQ(blurred(row, 2, 1), (Bytes{0, 64, 128, 64, 0}));
    EXPECT_EQ(blurred(row, 3, 2), (Bytes{28, 57, 85, 57, 28}));
    EXPECT_EQ(blurred(row, 1, 3), row);
    EXPECT_EQ(blurred(row, 9, 1), (Bytes{28, 28, 28, 28, 28}));
    Bytes square(9);
    square[4] = 255;
    BoxBlur({square.data(), 3, 3, 1}, 3, 3, 1);
    EXPECT_EQ(square, Bytes(9, 28));
    // Each channel for itself.
    Bytes pixels{30, 0, 0, 0, 0, 0, 60, 90, 0, 0, 0, 0};
    BoxBlur({pixels.data(), 3, 1, 4}, 3, 1, 1);
    EXPECT_EQ(pixels, (Bytes{10, 0, 20, 30, 10, 0, 20, 30, 0, 0, 20, 30}));
}

TEST(Blend, mixes_opaque_colours_by_each_mode) {
    constexpr std::uint32_t Above = 0xFFC8C8C8;  // 200
    constexpr std::uint32_t Below = 0xFF646464;  // 100
    constexpr int Expected[] = {200, 200, 200, 78,  222, 200, 100, 100,
                                255, 0,   155, 100, 0,   157, 188};
    for (int mode = 0; mode < 15; ++mode) {
        Raster below = OnePixel(Below);
        Blend(below, OnePixel(Above), 0, 0, static_cast<BlendMode>(mode), {0, 0, 1, 1});
        EXPECT_EQ(below.Row(0)[0] & 255, static_cast<unsigned>(Expected[mode])) << mode;
        const bool erased = mode == static_cast<int>(BlendMode::Erase);
        EXPECT_EQ(below.Row(0)[0] >> 24, erased ? 0u : 255u) << mode;
    }
}

TEST(Blend, mixes_by_the_opacity_of_both_within_its_place) {
    Raster below(3, 1);
    below.Pixels() = {0xFF646464, 0xFF646464, 0};
    Raster above(2, 1);
    // Half of white, which a multiplication does not see, and half of black.
    above.Pixels() = {0x80808080, 0x80000000};
    Blend(below, above, 1, 0, BlendMode::Multiply, {0, 0, 3, 1});
    EXPECT_EQ(below.Pixels(), (std::vector<std::uint32_t>{0xFF646464, 0xFF646464, 0x80000000}));
    Blend(below, above, -1, 0, BlendMode::Normal, {0, 0, 3, 1});
    EXPECT_EQ(below.Row(0)[0], 0xFF323232);
    Blend(below, OnePixel(White), 1, 0, BlendMode::Normal, {2, 0, 3, 1});
    EXPECT_EQ(below.Row(0)[1], 0xFF646464) << "outside of the clip";
    // What is not covered loses its opacity, too.
    Blend(below, OnePixel(0x80000000), 0, 0, BlendMode::Alpha, {0, 0, 3, 1});
    EXPECT_EQ(below.Pixels(), (std::vector<std::uint32_t>{0x80191919, 0, 0}));
}

TEST(RasterColors, change_what_a_pixel_is_without_its_opacity) {
    Raster raster(2, 1);
    raster.Pixels() = {0x80400000, 0};
    SwfColorTransform half;
    half.MultR = 128;
    ApplyColors(raster, half);
    EXPECT_EQ(raster.Pixels(), (std::vector<std::uint32_t>{0x80200000, 0}));
    SwfColorTransform add;
    add.AddB = 255;
    add.AddA = -64;
    ApplyColors(raster, add);
    EXPECT_EQ(raster.Row(0)[0], 0x40100040u);
}

TEST(Filters, are_read_as_a_movie_holds_them) {
    const Bytes list{2,    1,    0x00, 0x80, 5, 0, 0, 0, 2, 0, 0x10, 2, 0xFF, 0,
                     0x80, 0x40, 0,    0,    8, 0, 0, 0, 4, 0, 0x80, 1, 0xA3, 0xEE};
    SwfBits bits(list);
    const std::vector<PlacedFilter> filters = ReadFilterList(bits);
    ASSERT_EQ(filters.size(), 2u);
    EXPECT_EQ(std::get<BlurFilter>(filters[0]), (BlurFilter{5.5, 2, 2}));
    GlowFilter glow;
    glow.Color = {255, 0, 128, 64};
    glow.Blur = {8, 4, 3};
    glow.Strength = 1.5;
    glow.blInner = true;
    EXPECT_EQ(std::get<GlowFilter>(filters[1]), glow);
    EXPECT_EQ(bits.Rest().size(), 1u);
    for (std::size_t length = 0; length < list.size() - 1; ++length) {
        SwfBits cut(ByteView(list).first(length));
        EXPECT_THROW(ReadFilterList(cut), RuntimeError) << length;
    }
    const Bytes unknown{1, 9};
    SwfBits other(unknown);
    EXPECT_THROW(ReadFilterList(other), RuntimeError);
}

/// The filtered pixel at a place of the source.
std::uint32_t PixelAt(const FilteredRaster& made, Long x, Long y) {
    return made.Pixels.Row(y - made.Top)[x - made.Left];
}

TEST(Filters, cast_a_shadow_as_their_options_say) {
    GlowFilter shadow;
    shadow.Distance = 2;
    const auto applied = [&shadow](double scale) {
        return ApplyFilters(OnePixel(White), {shadow}, scale);
    };
    EXPECT_EQ(PixelAt(applied(1), 2, 0), Black);
    EXPECT_EQ(PixelAt(applied(1), 0, 0), White);
    EXPECT_EQ(PixelAt(applied(1), 1, 0), 0u);
    EXPECT_EQ(PixelAt(applied(2), 4, 0), Black);
    shadow.Strength = 0.5;
    EXPECT_EQ(PixelAt(applied(1), 2, 0), 0x80000000);
    shadow.blCompositeSource = false;
    EXPECT_EQ(PixelAt(applied(1), 0, 0), 0u);
    shadow.blKnockout = true;
    shadow.Distance = 0;
    EXPECT_EQ(PixelAt(applied(1), 0, 0), 0u);
    shadow = GlowFilter();
    shadow.blInner = true;
    shadow.Distance = 2;
    EXPECT_EQ(PixelAt(applied(1), 0, 0), Black);
    EXPECT_EQ(PixelAt(applied(1), 2, 0), 0u);
}

TEST(Filters, of_colours_and_neighbours_work_on_colours_without_opacity) {
    ColorMatrixFilter swap;
    swap.Matrix[1] = 1;  // red of green
    swap.Matrix[5] = 1;  // green of red
    swap.Matrix[14] = 51;
    swap.Matrix[18] = 0.5;
    EXPECT_EQ(PixelAt(ApplyFilters(OnePixel(0xFF40FF80), {swap}, 1), 0, 0), 0x8080201Au);
    ConvolutionFilter mean;
    mean.Columns = 3;
    mean.Rows = 1;
    mean.Matrix = {1, 1, 1};
    mean.Divisor = 3;
    mean.blPreserveAlpha = true;
    mean.blClamp = true;
    Raster row(3, 1);
    row.Pixels() = {0xFF000000, 0xFF00001E, 0xFF00003C};
    EXPECT_EQ(ApplyFilters(row, {mean}, 1).Pixels.Pixels(),
              (std::vector<std::uint32_t>{0xFF00000A, 0xFF00001E, 0xFF000032}));
}

}  // namespace
}  // namespace tamber

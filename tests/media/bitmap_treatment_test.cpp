#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "media/BitmapTreatment.h"
#include "swf/mdlZlib.h"
#include "tests/media/support/Fixtures.h"
#include "tests/media/support/PictureText.h"
#include "tests/media/support/PreparedPixels.h"

namespace tamber::test {
namespace {

using Pixels = std::vector<RgbQuad>;

BitmapOptions KeyColour(int red, int green, int blue) {
    BitmapOptions options;
    options.blToumei = true;
    options.ToumeiColorRed = static_cast<Byte>(red);
    options.ToumeiColorGreen = static_cast<Byte>(green);
    options.ToumeiColorBlue = static_cast<Byte>(blue);
    return options;
}

BitmapOptions Shaded(BitmapOptions options, Long type, Long number) {
    options.blShading = true;
    options.ShadingType = type;
    options.ShadingNum = number;
    return options;
}

Pixels Prepared(const clsDib& dib, const BitmapOptions& options, Long bitCount = 32) {
    BitmapBuffers buffers;
    EXPECT_TRUE(PrepareBitmap(dib, options, buffers));
    EXPECT_FALSE(buffers.blJpeg);
    EXPECT_EQ(buffers.BitCount, bitCount);
    return PreparedPixels(buffers).Pixels();
}

Bytes AlphaOf(clsDib dib, const BitmapOptions& options) {
    TreatAlpha(dib, options);
    return dib.ADib;
}

TEST(BitmapTreatment, a_key_colour_hides_its_pixels_alone) {
    const clsDib dib = DibOf(2, {Rgba(10, 20, 30, 255), Rgba(10, 20, 31, 255),
                                 Rgba(30, 20, 10, 255), Rgba(10, 20, 30, 255)});
    EXPECT_EQ(
        Prepared(dib, KeyColour(10, 20, 30)),
        Pixels({Rgba(0, 0, 0, 0), Rgba(10, 20, 31, 255), Rgba(30, 20, 10, 255), Rgba(0, 0, 0, 0)}));
}

TEST(BitmapTreatment, a_colour_range_fades_with_the_distance) {
    // Range 10, divisor 101. Distances squared: 0, 1, 12, 100, 101.
    const clsDib dib =
        DibOf(5, {Rgba(100, 100, 100, 255), Rgba(101, 100, 100, 255), Rgba(102, 98, 102, 255),
                  Rgba(90, 100, 100, 255), Rgba(91, 104, 98, 255)});
    const BitmapOptions range = Shaded(KeyColour(100, 100, 100), ShadingColorRange, 10);
    EXPECT_EQ(AlphaOf(dib, range), Bytes({0, 2, 30, 252, 255}));
    // Colours multiplied by alpha: 102 * 30 / 255 = 12, 98 * 30 / 255 = 11.5.
    EXPECT_EQ(Prepared(dib, range)[2], Rgba(12, 11, 12, 30));
    BitmapOptions unknown = range;
    unknown.ShadingType = 7;
    EXPECT_EQ(AlphaOf(dib, unknown), Bytes({0, 2, 30, 252, 255}));
}

TEST(BitmapTreatment, a_colour_range_of_any_size_is_taken) {
    const clsDib dib = DibOf(3, {Rgba(0, 0, 0, 255), Rgba(1, 0, 0, 255), Rgba(255, 255, 255, 255)});
    EXPECT_EQ(AlphaOf(dib, Shaded(KeyColour(0, 0, 0), ShadingColorRange, 0)), Bytes({0, 255, 255}));
    EXPECT_EQ(AlphaOf(dib, Shaded(KeyColour(0, 0, 0), ShadingColorRange, 0x7FFFFFFF)),
              Bytes({0, 0, 0}));
}

TEST(BitmapTreatment, a_blur_fades_the_edges_of_the_key_colour) {
    const clsDib dib =
        DibOf(3, {Rgba(9, 9, 9, 255), Rgba(100, 200, 50, 255), Rgba(100, 200, 50, 255)});
    // Alpha 0 255 255, weights 1 2 1 with the edges repeated: 255 / 4, 765 / 4, 255.
    EXPECT_EQ(Prepared(dib, Shaded(KeyColour(9, 9, 9), ShadingBlur, 1)),
              Pixels({Rgba(2, 2, 2, 63), Rgba(74, 149, 37, 191), Rgba(100, 200, 50, 255)}));
}

TEST(BitmapTreatment, shading_without_a_key_colour_does_nothing) {
    BitmapOptions options = Shaded({}, ShadingBlur, 5);
    const Pixels pixels{Rgba(0, 0, 0, 255), Rgba(9, 8, 7, 255)};
    EXPECT_EQ(Prepared(DibOf(2, pixels), options), pixels);
}

TEST(BitmapTreatment, the_files_own_alpha_is_never_raised) {
    const clsDib dib = DibOf(
        4, {Rgba(5, 5, 5, 255), Rgba(200, 0, 0, 0), Rgba(200, 0, 0, 128), Rgba(200, 0, 0, 255)});
    EXPECT_EQ(AlphaOf(dib, {}), Bytes({255, 0, 128, 255}));
    EXPECT_EQ(AlphaOf(dib, KeyColour(5, 5, 5)), Bytes({0, 0, 128, 255}));
    EXPECT_EQ(AlphaOf(dib, Shaded(KeyColour(5, 5, 5), ShadingColorRange, 1000)),
              // Distance 195, 5, 5: 38075 * 255 / 1000001 = 9.7.
              Bytes({0, 0, 9, 9}));
    // Blurred: 0 0 128 255 gives (0 + 0 + 0) / 4, 128 / 4, (0 + 256 + 255) / 4, (128 + 765) / 4.
    EXPECT_EQ(AlphaOf(dib, Shaded(KeyColour(5, 5, 5), ShadingBlur, 1)), Bytes({0, 0, 127, 223}));
}

TEST(BitmapTreatment, a_palette_stays_where_it_can_tell_the_alpha) {
    clsDib dib;
    ASSERT_TRUE(dib.LoadFromFile(FixturePath("palette2.png")));
    const RgbQuad key = dib.dib.bmiColors[1];
    const BitmapOptions hard = KeyColour(key.rgbRed, key.rgbGreen, key.rgbBlue);
    clsDib deep = dib;
    deep.ChangeTo32();
    EXPECT_EQ(Prepared(dib, hard, 8), Prepared(deep, hard, 32));
    const BitmapOptions range = Shaded(hard, ShadingColorRange, 120);
    EXPECT_EQ(Prepared(dib, range, 8), Prepared(deep, range, 32));
    const BitmapOptions blur = Shaded(hard, ShadingBlur, 2);
    EXPECT_EQ(Prepared(dib, blur, 32), Prepared(deep, blur, 32));
}

TEST(BitmapTreatment, five_bits_a_channel_stay_without_transparency_only) {
    clsDib dib;
    ASSERT_TRUE(dib.LoadFromFile(FixturePath("rgb555.bmp")));
    clsDib deep = dib;
    deep.ChangeTo32();
    EXPECT_EQ(Prepared(dib, {}, 16), Prepared(deep, {}, 32));
    const RgbQuad first = deep.Pixel(0, 0);
    const BitmapOptions key = KeyColour(first.rgbRed, first.rgbGreen, first.rgbBlue);
    EXPECT_EQ(Prepared(dib, key, 32), Prepared(deep, key, 32));
    EXPECT_EQ(Prepared(dib, key, 32)[0], Rgba(0, 0, 0, 0));
}

// JPEG

/// The plane beside a JPEG, empty when there is none.
Bytes AlphaOf(const BitmapBuffers& buffers) {
    if (!buffers.HasAlphaTbl()) return {};
    return mdlZlib::ZlibUncompress(buffers.bufAlpha, std::size_t{1} << 20).value();
}

/// The image of a movie's JPEG as a player makes it of stream and plane: each colour at most its
/// alpha.
clsDib Played(const BitmapBuffers& buffers) {
    const Bytes alpha = AlphaOf(buffers);
    clsDib dib;
    EXPECT_TRUE(dib.LoadFromMemory(buffers.bufBmp));
    dib.ChangeTo32();
    for (std::size_t i = 0; i < alpha.size(); ++i) {
        Byte* pixel = dib.Bits.data() + i * 4;
        pixel[3] = alpha[i];
        for (int channel = 0; channel < 3; ++channel)
            pixel[channel] = std::min(pixel[channel], pixel[3]);
    }
    return dib;
}

BitmapBuffers PreparedJpeg(const std::string& name, const BitmapOptions& options) {
    BitmapBuffers buffers;
    EXPECT_TRUE(SetBitmapData(FixturePath(name), options, buffers));
    EXPECT_TRUE(buffers.blJpeg);
    return buffers;
}

/// What a fixture's JPEG decodes to at the middle of its square of 240, 240, 240.
BitmapOptions KeyOfWhiteSquare() {
    clsDib dib;
    EXPECT_TRUE(dib.LoadFromFile(FixturePath("full-colour.jpg")));
    dib.ChangeTo32();
    const RgbQuad pixel = dib.Pixel(7, 23);
    return KeyColour(pixel.rgbRed, pixel.rgbGreen, pixel.rgbBlue);
}

TEST(BitmapTreatment, a_key_colour_leaves_a_jpegs_stream_and_adds_a_plane) {
    const BitmapBuffers buffers = PreparedJpeg("full-colour.jpg", KeyOfWhiteSquare());
    EXPECT_EQ(buffers.bufBmp, FixtureBytes("full-colour.jpg"));
    ASSERT_EQ(AlphaOf(buffers).size(), 48u * 32u);
    const clsDib shown = Played(buffers);
    EXPECT_EQ(shown.Pixel(7, 23), Rgba(0, 0, 0, 0));
    EXPECT_EQ(shown.Pixel(7, 7).rgbReserved, 255);
    EXPECT_NEAR(shown.Pixel(7, 7).rgbRed, 200, 6);
}

TEST(BitmapTreatment, a_key_colour_that_a_jpeg_lacks_leaves_it_alone) {
    const BitmapBuffers buffers = PreparedJpeg("full-colour.jpg", KeyColour(255, 0, 255));
    EXPECT_EQ(buffers.bufBmp, FixtureBytes("full-colour.jpg"));
    EXPECT_FALSE(buffers.HasAlphaTbl());
}

TEST(BitmapTreatment, a_fade_multiplies_a_jpegs_colours) {
    const BitmapOptions options = Shaded(KeyOfWhiteSquare(), ShadingColorRange, 300);
    const BitmapBuffers buffers = PreparedJpeg("full-colour.jpg", options);
    EXPECT_NE(buffers.bufBmp, FixtureBytes("full-colour.jpg"));
    const clsDib shown = Played(buffers);
    // The grey square is 112 levels off in each channel: 37632 * 255 / 90001 = 106, and 128 times
    // that alpha is 53.
    const RgbQuad grey = shown.Pixel(39, 23);
    EXPECT_NEAR(grey.rgbReserved, 106, 4);
    EXPECT_NEAR(grey.rgbRed, 53, 6);
    EXPECT_NEAR(grey.rgbBlue, 53, 6);
    EXPECT_EQ(shown.Pixel(7, 23), Rgba(0, 0, 0, 0));
}

TEST(BitmapTreatment, compression_makes_a_jpeg_of_any_picture) {
    BitmapOptions options;
    options.blJpegComp = true;
    options.JpegQuality = 90;
    clsDib opaque = DibOf(16, Pixels(256, Rgba(20, 180, 60, 255)));
    BitmapBuffers buffers;
    ASSERT_TRUE(PrepareBitmap(opaque, options, buffers));
    EXPECT_TRUE(buffers.blJpeg);
    EXPECT_FALSE(buffers.HasAlphaTbl());
    EXPECT_NEAR(Played(buffers).Pixel(8, 8).rgbGreen, 180, 3);

    const clsDib half = DibOf(16, Pixels(256, Rgba(20, 180, 60, 128)));
    ASSERT_TRUE(PrepareBitmap(half, options, buffers));
    EXPECT_EQ(AlphaOf(buffers), Bytes(256, 128));
    const RgbQuad pixel = Played(buffers).Pixel(8, 8);
    EXPECT_NEAR(pixel.rgbRed, 10, 3);
    EXPECT_NEAR(pixel.rgbGreen, 90, 3);
    EXPECT_NEAR(pixel.rgbBlue, 30, 3);
}

TEST(BitmapTreatment, compression_follows_the_quality) {
    std::size_t before = 0;
    for (const Long quality : {1, 50, 100}) {
        BitmapOptions options;
        options.blJpegComp = true;
        options.JpegQuality = quality;
        const BitmapBuffers buffers = PreparedJpeg("table-refilled.gif", options);
        EXPECT_GT(buffers.bufBmp.size(), before) << quality;
        before = buffers.bufBmp.size();
    }
    BitmapOptions beyond;
    beyond.blJpegComp = true;
    beyond.JpegQuality = 1000;
    EXPECT_EQ(PreparedJpeg("table-refilled.gif", beyond).bufBmp.size(), before);
}

TEST(BitmapTreatment, compression_applies_to_a_jpeg_too) {
    BitmapOptions options;
    options.blJpegComp = true;
    options.JpegQuality = 5;
    EXPECT_NE(PreparedJpeg("full-colour.jpg", options).bufBmp, FixtureBytes("full-colour.jpg"));
}

TEST(BitmapTreatment, a_failure_leaves_the_buffers) {
    BitmapBuffers buffers;
    buffers.bufBmp = {1, 2, 3};
    buffers.Width = 7;
    EXPECT_FALSE(PrepareBitmap(clsDib(), {}, buffers));
    EXPECT_FALSE(SetBitmapData(FixturePath("expected.txt"), {}, buffers));
    EXPECT_EQ(buffers.bufBmp, Bytes({1, 2, 3}));
    EXPECT_EQ(buffers.Width, 7);
}

}  // namespace
}  // namespace tamber::test

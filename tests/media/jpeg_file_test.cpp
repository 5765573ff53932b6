#include <gtest/gtest.h>

#include <cstdlib>

#include "media/BitmapTreatment.h"
#include "tests/media/support/Fixtures.h"
#include "tests/media/support/PictureText.h"

namespace tamber::test {
namespace {

/// The six colours of the fixtures' squares, three across and two down.
const RgbQuad Blocks[] = {Rgba(200, 30, 40, 255), Rgba(20, 180, 60, 255),
                          Rgba(30, 40, 210, 255), Rgba(240, 240, 240, 255),
                          Rgba(16, 16, 16, 255),  Rgba(128, 128, 128, 255)};

struct JpegCase {
    const char* Name;
    Long BitCount;
    bool PlayerShows;
    bool Grey;
    int Black;  ///< of 255, laid over the colours
};

const JpegCase Cases[] = {
    {"full-colour.jpg", 24, true, false, 0}, {"halved-colour.jpeg", 24, true, false, 0},
    {"progressive.jpg", 24, true, false, 0}, {"restarts.jpg", 24, true, false, 0},
    {"grey.jpg", 8, true, true, 0},          {"arithmetic.jpg", 24, false, false, 0},
    {"rgb.jpg", 24, false, false, 0},        {"cmyk.jpg", 24, false, false, 64},
    {"cmyk-plain.jpg", 24, false, false, 64}};

RgbQuad Expected(const JpegCase& jpeg, const RgbQuad& block) {
    if (jpeg.Grey) {
        const int level =
            (299 * block.rgbRed + 587 * block.rgbGreen + 114 * block.rgbBlue + 500) / 1000;
        return Rgba(level, level, level, 255);
    }
    const int light = 255 - jpeg.Black;
    return Rgba(block.rgbRed * light / 255, block.rgbGreen * light / 255,
                block.rgbBlue * light / 255, 255);
}

int Distance(const RgbQuad& a, const RgbQuad& b) {
    return std::max({std::abs(a.rgbRed - b.rgbRed), std::abs(a.rgbGreen - b.rgbGreen),
                     std::abs(a.rgbBlue - b.rgbBlue), std::abs(a.rgbReserved - b.rgbReserved)});
}

/// Compares the middles of the squares, where no neighbour's colour reaches.
void ExpectBlocks(clsDib dib, const JpegCase& jpeg) {
    dib.ChangeTo32();
    for (Long i = 0; i < 6; ++i) {
        const RgbQuad pixel = dib.Pixel(i % 3 * 16 + 7, i / 3 * 16 + 7);
        const RgbQuad expected = Expected(jpeg, Blocks[i]);
        EXPECT_LE(Distance(pixel, expected), 6) << jpeg.Name << ' ' << pixel << ' ' << expected;
    }
}

TEST(JpegFile, shows_its_colours) {
    for (const JpegCase& jpeg : Cases) {
        clsDib dib;
        ASSERT_TRUE(dib.LoadFromFile(FixturePath(jpeg.Name))) << jpeg.Name;
        EXPECT_EQ(dib.Width(), 48) << jpeg.Name;
        EXPECT_EQ(dib.Height(), 32) << jpeg.Name;
        EXPECT_EQ(dib.BitCount(), jpeg.BitCount) << jpeg.Name;
        EXPECT_EQ(dib.blPlayerJpeg, jpeg.PlayerShows) << jpeg.Name;
        ExpectBlocks(dib, jpeg);
    }
}

TEST(JpegFile, goes_into_the_movie_unchanged_where_a_player_shows_it) {
    for (const JpegCase& jpeg : Cases) {
        const Bytes file = FixtureBytes(jpeg.Name);
        BitmapBuffers buffers;
        ASSERT_TRUE(SetBitmapData(FixturePath(jpeg.Name), {}, buffers)) << jpeg.Name;
        EXPECT_TRUE(buffers.blJpeg);
        EXPECT_FALSE(buffers.HasAlphaTbl());
        EXPECT_EQ(buffers.Width, 48);
        EXPECT_EQ(buffers.height, 32);
        EXPECT_EQ(buffers.bufBmp == file, jpeg.PlayerShows) << jpeg.Name;
        clsDib shown;
        ASSERT_TRUE(shown.LoadFromMemory(buffers.bufBmp)) << jpeg.Name;
        EXPECT_TRUE(shown.blPlayerJpeg) << jpeg.Name;
        ExpectBlocks(shown, jpeg);
    }
}

TEST(JpegFile, cut_anywhere_is_refused) {
    for (const JpegCase& jpeg : Cases) {
        const Bytes whole = FixtureBytes(jpeg.Name);
        ASSERT_GT(whole.size(), 100u) << jpeg.Name;
        for (std::size_t length = 0; length < whole.size(); ++length) {
            clsDib dib;
            EXPECT_FALSE(dib.LoadFromMemory(
                Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length))))
                << jpeg.Name << ' ' << length;
            EXPECT_TRUE(dib.Empty());
        }
    }
}

TEST(JpegFile, with_data_missing_in_the_middle_is_refused) {
    Bytes file = FixtureBytes("full-colour.jpg");
    file.erase(file.end() - 40, file.end() - 2);
    clsDib dib;
    EXPECT_FALSE(dib.LoadFromMemory(file));
}

TEST(JpegFile, tells_its_density) {
    Bytes file = FixtureBytes("full-colour.jpg");
    // The JFIF segment: unit at byte 13, then both densities with the upper byte first.
    file[13] = 1;
    file[15] = 72;
    file[17] = 96;
    clsDib dib;
    ASSERT_TRUE(dib.LoadFromMemory(file));
    EXPECT_EQ(dib.dib.bmiHeader.biXPelsPerMeter, 2835);
    EXPECT_EQ(dib.dib.bmiHeader.biYPelsPerMeter, 3780);
}

}  // namespace
}  // namespace tamber::test

#include <gtest/gtest.h>

#include <cctype>

#include "media/BitmapTreatment.h"
#include "tests/media/support/Fixtures.h"
#include "tests/media/support/PictureText.h"
#include "tests/media/support/PreparedPixels.h"

namespace tamber::test {

void PrintTo(const PictureFixture& fixture, std::ostream* out) {
    *out << fixture.Name;
}

namespace {

RgbQuad Premultiplied(const RgbQuad& pixel) {
    const int alpha = pixel.rgbReserved;
    return Rgba(pixel.rgbRed * alpha / 255, pixel.rgbGreen * alpha / 255,
                pixel.rgbBlue * alpha / 255, alpha);
}

class PictureFile : public testing::TestWithParam<PictureFixture> {};

TEST_P(PictureFile, shows_the_pixels_it_was_made_of) {
    clsDib dib;
    ASSERT_TRUE(dib.LoadFromFile(FixturePath(GetParam().Name)));
    EXPECT_EQ(dib.Width(), GetParam().Width);
    EXPECT_EQ(dib.Height(), GetParam().Height);
    dib.MkAlphaTable();
    EXPECT_EQ(PixelsOf(dib), GetParam().Pixels);
}

TEST_P(PictureFile, gives_a_buffer_of_the_same_pixels) {
    BitmapBuffers buffers;
    ASSERT_TRUE(SetBitmapData(FixturePath(GetParam().Name), {}, buffers));
    EXPECT_FALSE(buffers.blJpeg);
    EXPECT_FALSE(buffers.HasAlphaTbl());
    EXPECT_EQ(buffers.BitCount, GetParam().BitCount);
    EXPECT_EQ(buffers.Width, GetParam().Width);
    EXPECT_EQ(buffers.height, GetParam().Height);
    std::vector<RgbQuad> expected;
    for (const RgbQuad& pixel : GetParam().Pixels) expected.push_back(Premultiplied(pixel));
    EXPECT_EQ(PreparedPixels(buffers).Pixels(), expected);
}

TEST_P(PictureFile, cut_before_its_pixels_end_is_refused) {
    const Bytes whole = FixtureBytes(GetParam().Name);
    // Behind the pixels stand at most the 12 bytes that end a PNG, the two of run-length code, or
    // what ends the blocks of a GIF and the pictures behind its first.
    const bool gif = GetParam().Name.ends_with(".gif");
    const std::size_t needed = gif ? whole.size() / 3 : whole.size() - 2;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        clsDib dib;
        const bool read = dib.LoadFromMemory(
            Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)));
        EXPECT_EQ(read, !dib.Empty()) << length;
        EXPECT_FALSE(read && length < needed) << length;
    }
}

std::string TestName(const testing::TestParamInfo<PictureFixture>& parameter) {
    std::string name = parameter.param.Name;
    for (char& character : name)
        if (std::isalnum(static_cast<unsigned char>(character)) == 0) character = '_';
    return name;
}

INSTANTIATE_TEST_SUITE_P(Fixtures, PictureFile, testing::ValuesIn(PictureFixtures()), TestName);

}  // namespace
}  // namespace tamber::test

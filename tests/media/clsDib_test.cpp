#include "media/clsDib.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/files.h"
#include "tests/media/support/Fixtures.h"
#include "tests/media/support/PictureText.h"

namespace tamber::test {
namespace {

/// A folder of its own for each test, gone behind it.
class PictureFolder : public testing::Test {
protected:
    void SetUp() override {
        std::string folder = (std::filesystem::temp_directory_path() / "picturesXXXXXX").string();
        ASSERT_NE(mkdtemp(folder.data()), nullptr);
        folder_ = folder;
    }
    void TearDown() override { std::filesystem::remove_all(folder_); }

    String Copy(const std::string& fixture, StringView name) {
        const String path = Path(name);
        EXPECT_TRUE(WriteFileBytes(FixtureBytes(fixture), path));
        return path;
    }
    String Path(StringView name) const {
        return FromNarrow(folder_.string()) + u"/" + String(name);
    }

private:
    std::filesystem::path folder_;
};

TEST_F(PictureFolder, reads_by_extension_in_any_letter_case) {
    struct Case {
        const char* Fixture;
        StringView Name;
        PictureKind Kind;
    };
    const Case cases[] = {{"rgb24.bmp", u"写真.BMP", PictureKind::Bitmap},
                          {"rgb8.png", u"a.Png", PictureKind::Png},
                          {"plain.gif", u"a.GIF", PictureKind::Gif},
                          {"grey.jpg", u"a.b.JPEG", PictureKind::Jpeg},
                          {"grey.jpg", u"a.Jpg", PictureKind::Jpeg}};
    for (const Case& one : cases) {
        clsDib dib;
        const String path = Copy(one.Fixture, one.Name);
        EXPECT_TRUE(dib.LoadFromFile(path)) << ToNarrow(one.Name);
        EXPECT_EQ(dib.eType, one.Kind) << ToNarrow(one.Name);
        EXPECT_EQ(dib.FileName, path);
    }
}

TEST_F(PictureFolder, reads_a_misnamed_picture_by_its_content) {
    clsDib dib;
    EXPECT_TRUE(dib.LoadFromFile(Copy("rgb8.png", u"picture.jpg")));
    EXPECT_EQ(dib.eType, PictureKind::Png);
    EXPECT_TRUE(dib.LoadFromFile(Copy("grey.jpg", u"picture.bmp")));
    EXPECT_EQ(dib.eType, PictureKind::Jpeg);
}

TEST_F(PictureFolder, refuses_other_extensions_and_missing_files) {
    clsDib dib;
    ASSERT_TRUE(dib.LoadFromFile(FixturePath("rgb8.png")));
    for (const StringView name : {u"picture.tif", u"picture", u"png"}) {
        EXPECT_FALSE(dib.LoadFromFile(Copy("rgb8.png", name))) << ToNarrow(name);
        EXPECT_TRUE(dib.Empty());
        EXPECT_EQ(dib.eType, PictureKind::None);
    }
    EXPECT_FALSE(dib.LoadFromFile(Path(u"none.png")));
}

TEST_F(PictureFolder, saves_as_jpeg) {
    clsDib dib;
    ASSERT_TRUE(dib.LoadFromFile(FixturePath("full-colour.jpg")));
    const String path = Path(u"出力.jpg");
    ASSERT_TRUE(dib.SaveJpg(path, 90));
    clsDib saved;
    ASSERT_TRUE(saved.LoadFromFile(path));
    saved.ChangeTo32();
    const RgbQuad pixel = saved.Pixel(7, 23);
    EXPECT_NEAR(pixel.rgbRed, 240, 6);
    EXPECT_NEAR(pixel.rgbBlue, 240, 6);
    EXPECT_FALSE(dib.SaveJpg(Path(u"missing/a.jpg"), 90));
    EXPECT_FALSE(clsDib().SaveJpg(path, 90));
}

clsDib ImageOf(Long width, Long height, Long bits, const Bytes& bytes) {
    clsDib dib;
    dib.Create(width, height, bits);
    EXPECT_EQ(dib.Bits.size(), bytes.size());
    dib.Bits = bytes;
    return dib;
}

TEST(DibConversion, pads_rows_to_whole_words) {
    EXPECT_EQ(clsDib::StrideOf(1, 1), 4u);
    EXPECT_EQ(clsDib::StrideOf(32, 1), 4u);
    EXPECT_EQ(clsDib::StrideOf(33, 1), 8u);
    EXPECT_EQ(clsDib::StrideOf(9, 4), 8u);
    EXPECT_EQ(clsDib::StrideOf(3, 24), 12u);
    EXPECT_EQ(clsDib::StrideOf(65500, 32), 262000u);
}

TEST(DibConversion, one_bit_takes_the_highest_bit_first) {
    clsDib dib = ImageOf(10, 1, 1, {0b10110001, 0b01000000, 0, 0});
    dib.Change1to8();
    EXPECT_EQ(dib.BitCount(), 8);
    EXPECT_EQ(dib.Bits, Bytes({1, 0, 1, 1, 0, 0, 0, 1, 0, 1, 0, 0}));
}

TEST(DibConversion, four_bits_take_the_upper_half_first) {
    clsDib dib = ImageOf(3, 1, 4, {0xA5, 0xF0, 0, 0});
    dib.Change4to8();
    EXPECT_EQ(dib.Bits, Bytes({10, 5, 15, 0}));
}

TEST(DibConversion, eight_bits_take_colour_and_alpha_from_the_palette) {
    clsDib dib = ImageOf(2, 1, 8, {3, 200, 0, 0});
    dib.dib.bmiColors[3] = RgbQuad{1, 2, 3, 77};
    dib.Change8to32();
    EXPECT_EQ(dib.Bits, Bytes({1, 2, 3, 77, 0, 0, 0, 255}));
}

TEST(DibConversion, sixteen_bits_have_five_bits_a_channel) {
    // 0x7FFF white; 0x7C00 red; 0x0010 blue 16: 16 * 255 / 31 = 131.6.
    clsDib dib = ImageOf(4, 1, 16, {0xFF, 0x7F, 0x00, 0x7C, 0x10, 0x00, 0x00, 0x80});
    dib.Change16to32();
    EXPECT_EQ(dib.Bits, Bytes({255, 255, 255, 255, 0, 0, 255, 255, 132, 0, 0, 255, 0, 0, 0, 255}));
}

TEST(DibConversion, masks_tell_the_channels) {
    clsDib dib = ImageOf(2, 1, 16, {0xE0, 0x07, 0x00, 0xF8});
    dib.dib.bmiHeader.biCompression = DibBitFields;
    dib.dib.bmiMasks = {0xF800, 0x07E0, 0x001F, 0};
    dib.Change16to32();
    EXPECT_EQ(dib.BitCount(), 16) << "five bits a channel are not meant";
    dib.ChangeBF16to32();
    EXPECT_EQ(dib.Bits, Bytes({0, 255, 0, 255, 0, 0, 255, 255}));

    clsDib wide = ImageOf(1, 1, 32, {0x11, 0x22, 0x33, 0x44});
    wide.dib.bmiHeader.biCompression = DibBitFields;
    wide.dib.bmiMasks = {0x000000FF, 0x0000FF00, 0x00FF0000, 0xFF000000};
    wide.ChangeBF32to32();
    EXPECT_EQ(wide.Bits, Bytes({0x33, 0x22, 0x11, 0x44}));
    wide.ChangeBF32to32();
    EXPECT_EQ(wide.Bits, Bytes({0x33, 0x22, 0x11, 0x44})) << "done once only";
}

TEST(DibConversion, twenty_four_bits_become_opaque) {
    clsDib dib = ImageOf(1, 2, 24, {1, 2, 3, 0, 4, 5, 6, 0});
    dib.Change24to32();
    EXPECT_EQ(dib.Bits, Bytes({1, 2, 3, 255, 4, 5, 6, 255}));
}

TEST(DibConversion, turning_rows_leaves_the_picture) {
    clsDib dib = DibOf(1, {Rgba(1, 0, 0, 255), Rgba(2, 0, 0, 255), Rgba(3, 0, 0, 255)});
    EXPECT_FALSE(dib.blBottomUp());
    const std::vector<RgbQuad> before = PixelsOf(dib);
    dib.ChangeTopBottom();
    EXPECT_TRUE(dib.blBottomUp());
    EXPECT_EQ(dib.Bits[2], 3);
    EXPECT_EQ(dib.Height(), 3);
    EXPECT_EQ(PixelsOf(dib), before);
}

TEST(DibDisplay, lays_the_picture_over_the_background) {
    clsDib dib = DibOf(3, {Rgba(200, 100, 50, 255), Rgba(200, 100, 50, 0), Rgba(200, 100, 50, 51)});
    dib.BlendColor = Rgba(10, 20, 30, 255);
    dib.MkAlphaTable();
    EXPECT_TRUE(dib.blBlend());
    clsDib shown = dib.BlendedCopy();
    EXPECT_EQ(shown.BitCount(), 24);
    shown.ChangeTo32();
    // 51 is a fifth of 255: 200 / 5 + 10 * 4 / 5 = 48, 100 / 5 + 20 * 4 / 5 = 36, 10 + 24 = 34.
    EXPECT_EQ(PixelsOf(shown), std::vector<RgbQuad>({Rgba(200, 100, 50, 255), Rgba(10, 20, 30, 255),
                                                     Rgba(48, 36, 34, 255)}));
}

TEST(DibDisplay, fits_the_picture_into_the_box) {
    struct Case {
        PictureBox Box;
        Long Width, Height;
        PictureBox Fit;
    };
    const Case cases[] = {
        {{0, 0, 100, 100}, 40, 20, {30, 40, 40, 20}},       // smaller: as it is, in the middle
        {{10, 20, 100, 100}, 200, 100, {10, 45, 100, 50}},  // the width decides
        {{0, 0, 100, 50}, 100, 100, {25, 0, 50, 50}},       // the height decides
        {{0, 0, 100, 100}, 65500, 10, {0, 49, 100, 1}},     // never without height
        {{0, 0, 64, 64}, 64, 64, {0, 0, 64, 64}},
    };
    for (const Case& one : cases) {
        const PictureBox fit = AjustDraw(one.Box, one.Width, one.Height);
        EXPECT_EQ(fit.Left, one.Fit.Left) << one.Width;
        EXPECT_EQ(fit.Top, one.Fit.Top) << one.Width;
        EXPECT_EQ(fit.Width, one.Fit.Width) << one.Width;
        EXPECT_EQ(fit.Height, one.Fit.Height) << one.Width;
    }
}

TEST(DibInfoText, tells_kind_header_and_transparency) {
    clsDib dib;
    ASSERT_TRUE(dib.LoadFromFile(FixturePath("indexed4-short.bmp")));
    EXPECT_EQ(ToNarrow(dib.InfoText()),
              "Bitmap\r\n"
              "biSize         ：40\r\n"
              "biWidth        ：13\r\n"
              "biHeight       ：5\r\n"
              "biPlanes       ：1\r\n"
              "biBitCount     ：4\r\n"
              "biCompression  ：0\r\n"
              "biSizeImage    ：40\r\n"
              "biXPelsPerMeter：2835\r\n"
              "biYPelsPerMeter：2835\r\n"
              "biClrUsed      ：5\r\n"
              "biClrImportant ：0\r\n");
    struct Case {
        const char* Name;
        const char* First;
        const char* Last;
    };
    const Case cases[] = {{"rgba8.png", "PNG\r\n", "biClrImportant ：0\r\n透過情報有り"},
                          {"rgb8.png", "PNG\r\n", "biClrImportant ：0\r\n"},
                          {"transparent.gif", "GIF\r\n", "透過情報有り[6](パレット)"},
                          {"palette2-alpha.png", "PNG\r\n", "透過情報有り[2](パレット)"},
                          {"full-colour.jpg", "JPEG\r\n", "biClrImportant ：0\r\n"}};
    for (const Case& one : cases) {
        ASSERT_TRUE(dib.LoadFromFile(FixturePath(one.Name)));
        const std::string text = ToNarrow(dib.InfoText());
        EXPECT_TRUE(text.starts_with(one.First)) << one.Name << ": " << text;
        EXPECT_TRUE(text.ends_with(one.Last)) << one.Name << ": " << text;
    }
    EXPECT_TRUE(ToNarrow(clsDib().InfoText()).starts_with("UnKnown\r\n"));
}

TEST(DibInfoText, tells_the_pixels_a_metre_of_a_png) {
    clsDib dib;
    ASSERT_TRUE(dib.LoadFromFile(FixturePath("single-pixel.png")));
    EXPECT_EQ(dib.dib.bmiHeader.biXPelsPerMeter, 3780);
    EXPECT_EQ(dib.dib.bmiHeader.biYPelsPerMeter, 3780);
}

}  // namespace
}  // namespace tamber::test

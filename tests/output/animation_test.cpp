#include <gtest/gtest.h>
#include <zlib.h>

#include "media/GifReader.h"
#include "media/PngReader.h"
#include "output/AnimationFile.h"

namespace tamber {
namespace {

constexpr std::uint32_t Red = 0xFFFF0000;
constexpr std::uint32_t Green = 0xFF00FF00;

/// 4 by 3 pixels, red but for one of another colour.
Raster Picture(Long x, Long y, std::uint32_t color = Green) {
    Raster picture(4, 3);
    std::fill(picture.Pixels().begin(), picture.Pixels().end(), Red);
    picture.Row(y)[x] = color;
    return picture;
}

/// Of the pictures with the odd pixel at (0, 0), (3, 2), again (3, 2), and (1, 1).
Bytes FileOf(StringView path, const AnimationFormat& format) {
    const auto file = MakeAnimationFile(path, format);
    for (const auto& [x, y] : {std::pair(0, 0), std::pair(3, 2), std::pair(3, 2), std::pair(1, 1)})
        EXPECT_TRUE(file->Add(Picture(x, y)));
    return file->Finish();
}

void ExpectFirstPicture(const clsDib& read) {
    clsDib dib = read;
    dib.ChangeTo32();
    ASSERT_EQ(dib.Width(), 4);
    ASSERT_EQ(dib.Height(), 3);
    EXPECT_EQ(dib.Pixel(0, 0).rgbGreen, 255);
    EXPECT_EQ(dib.Pixel(0, 0).rgbRed, 0);
    EXPECT_EQ(dib.Pixel(3, 2).rgbRed, 255);
}

std::uint32_t Number(ByteView bytes, std::size_t at) {
    return std::uint32_t{bytes[at]} << 24 | std::uint32_t{bytes[at + 1]} << 16 |
           std::uint32_t{bytes[at + 2]} << 8 | bytes[at + 3];
}

std::string Name(ByteView bytes, std::size_t at) {
    return {bytes.begin() + std::ptrdiff_t(at), bytes.begin() + std::ptrdiff_t(at) + 4};
}

TEST(Animations, as_png_hold_what_differs_from_picture_to_picture) {
    const Bytes file = FileOf(u"a.PNG", {4, 3, 24, 2});
    clsDib dib;
    ASSERT_TRUE(ReadPng(file, dib));
    ExpectFirstPicture(dib);
    std::string chunks;
    std::uint32_t sequence = 0;
    for (std::size_t at = 8; at < file.size();) {
        const std::uint32_t length = Number(file, at);
        const std::string name = Name(file, at + 4);
        chunks += name + " ";
        EXPECT_EQ(Number(file, at + 8 + length), crc32(0, file.data() + at + 4, length + 4));
        const auto data = [&](std::size_t offset) { return Number(file, at + 8 + offset); };
        if (name == "acTL") {
            EXPECT_EQ(data(0), 4u);
            EXPECT_EQ(data(4), 2u);
        }
        if (name == "fcTL" || name == "fdAT") {
            EXPECT_EQ(data(0), sequence++);
        }
        if (name == "fcTL") {
            chunks += std::to_string(data(4)) + "x" + std::to_string(data(8)) + "+" +
                      std::to_string(data(12)) + "+" + std::to_string(data(16)) + " ";
            EXPECT_EQ(data(20), 256u << 16 | 24 * 256) << "a 24th of a second";
        }
        at += length + 12;
    }
    EXPECT_EQ(chunks,
              "IHDR acTL fcTL 4x3+0+0 IDAT fcTL 4x3+0+0 fdAT fcTL 1x1+0+0 fdAT fcTL 3x2+1+1 fdAT "
              "IEND ");
}

/// Delays of the pictures, in hundredths of a second.
std::vector<int> DelaysOf(ByteView gif) {
    std::vector<int> delays;
    for (std::size_t at = 0; at + 8 < gif.size(); ++at)
        if (gif[at] == 0x21 && gif[at + 1] == 0xF9 && gif[at + 2] == 4 && gif[at + 7] == 0)
            delays.push_back(gif[at + 4] | gif[at + 5] << 8);
    return delays;
}

TEST(Animations, as_gif_tell_times_that_sum_up) {
    const Bytes file = FileOf(u"a.gif", {4, 3, 24, 0});
    clsDib dib;
    ASSERT_TRUE(ReadGif(file, dib));
    ExpectFirstPicture(dib);
    // The second picture stays for the third one's time: frames begin at 0, 4, (8,) 13 and 17.
    EXPECT_EQ(DelaysOf(file), (std::vector<int>{4, 9, 4}));
    EXPECT_NE(std::search(file.begin(), file.end(), "NETSCAPE2.0", "NETSCAPE2.0" + 11), file.end());
    // Of a hundred a second half are left out.
    EXPECT_EQ(DelaysOf(FileOf(u"a.gif", {4, 3, 100, 1})), (std::vector<int>{2, 2}));
}

TEST(Animations, as_webp_are_made_and_other_extensions_are_not) {
    const Bytes file = FileOf(u"a.webp", {4, 3, 12, 3});
    ASSERT_GT(file.size(), 44u);
    EXPECT_EQ(Name(file, 0) + Name(file, 8) + Name(file, 12), "RIFFWEBPVP8X");
    EXPECT_EQ(Name(file, 30), "ANIM");
    EXPECT_EQ(file[42] | file[43] << 8, 3) << "rounds";
    EXPECT_EQ(MakeAnimationFile(u"a.bmp", {}), nullptr);
    for (const StringView path : {u"a.png", u"a.gif", u"a.webp"})
        EXPECT_TRUE(MakeAnimationFile(path, {4, 3})->Finish().empty()) << "no pictures";
}

}  // namespace
}  // namespace tamber

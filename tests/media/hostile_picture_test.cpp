#include <gtest/gtest.h>
#include <sys/resource.h>
#include <zlib.h>

#include <chrono>

#include "media/clsDib.h"
#include "tests/media/support/Fixtures.h"

namespace tamber::test {
namespace {

/// A file put together from numbers, the lowest byte first unless told otherwise.
class FileMaker {
public:
    FileMaker& Text(std::string_view text) {
        bytes_.insert(bytes_.end(), text.begin(), text.end());
        return *this;
    }
    FileMaker& Low(int count, std::uint64_t value) {
        for (int i = 0; i < count; ++i) bytes_.push_back(static_cast<Byte>(value >> (8 * i)));
        return *this;
    }
    FileMaker& High(int count, std::uint64_t value) {
        for (int i = count - 1; i >= 0; --i) bytes_.push_back(static_cast<Byte>(value >> (8 * i)));
        return *this;
    }
    FileMaker& Chunk(const FileMaker& content) {
        const Bytes& data = content.bytes_;
        High(4, data.size() - 4);
        bytes_.insert(bytes_.end(), data.begin(), data.end());
        return High(4, crc32(0, data.data(), static_cast<uInt>(data.size())));
    }
    operator Bytes() const { return bytes_; }

private:
    Bytes bytes_;
};

FileMaker Bmp(std::uint32_t offset, std::int64_t width, std::int64_t height, int bits,
              std::uint32_t compression, std::uint32_t used = 0, std::uint32_t headerSize = 40) {
    return FileMaker()
        .Text("BM")
        .Low(4, 0xFFFFFFFF)
        .Low(4, 0)
        .Low(4, offset)
        .Low(4, headerSize)
        .Low(4, static_cast<std::uint64_t>(width))
        .Low(4, static_cast<std::uint64_t>(height))
        .Low(2, 1)
        .Low(2, static_cast<std::uint64_t>(bits))
        .Low(4, compression)
        .Low(4, 0xFFFFFFFF)
        .Low(8, 0)
        .Low(4, used)
        .Low(4, 0);
}

FileMaker Png(std::uint32_t width, std::uint32_t height, int depth, int kind) {
    return FileMaker()
        .High(8, 0x89504E470D0A1A0A)
        .Chunk(FileMaker()
                   .Text("IHDR")
                   .High(4, width)
                   .High(4, height)
                   .High(1, static_cast<unsigned>(depth))
                   .High(1, static_cast<unsigned>(kind))
                   .High(3, 0));
}

FileMaker Gif(int screenWidth, int screenHeight, int left, int top, int width, int height) {
    return FileMaker()
        .Text("GIF89a")
        .Low(2, static_cast<unsigned>(screenWidth))
        .Low(2, static_cast<unsigned>(screenHeight))
        .Low(3, 0x80)
        .Low(6, 0xFFFFFF)
        .Text(",")
        .Low(2, static_cast<unsigned>(left))
        .Low(2, static_cast<unsigned>(top))
        .Low(2, static_cast<unsigned>(width))
        .Low(2, static_cast<unsigned>(height))
        .Low(1, 0)
        // Code size 2, one block of two bytes: clear (4), index 1, stop (5).
        .Low(1, 2)
        .Low(1, 2)
        .Low(2, 4 | 1 << 3 | 5 << 6)
        .Low(1, 0)
        .Text(";");
}

Bytes JpegOfSize(int width, int height) {
    Bytes file = FixtureBytes("progressive.jpg");
    for (std::size_t at = 2; at + 8 < file.size(); ++at)
        if (file[at] == 0xFF && file[at + 1] == 0xC2) {
            file[at + 5] = static_cast<Byte>(height >> 8);
            file[at + 6] = static_cast<Byte>(height);
            file[at + 7] = static_cast<Byte>(width >> 8);
            file[at + 8] = static_cast<Byte>(width);
            break;
        }
    return file;
}

/// A file whose two bytes at `at` are others.
Bytes WithBytes(Bytes file, std::size_t at, int low, int high) {
    file[at] = static_cast<Byte>(low);
    file[at + 1] = static_cast<Byte>(high);
    return file;
}

struct HostileCase {
    const char* Name;
    Bytes File;
};

std::vector<HostileCase> HostileCases() {
    const auto bmp = [](FileMaker head, int rest) -> Bytes {
        Bytes file = head;
        file.resize(file.size() + static_cast<std::size_t>(rest));
        return file;
    };
    return {
        {"bmp of the largest sides", bmp(Bmp(54, 0x7FFFFFFF, 0x7FFFFFFF, 32, 0), 64)},
        {"bmp of one endless row", bmp(Bmp(54, 0x7FFFFFFF, 1, 1, 0), 64)},
        {"bmp of the lowest height", bmp(Bmp(54, 4, -0x80000000LL, 8, 0), 64)},
        {"bmp of a negative width", bmp(Bmp(54, -4, 4, 8, 0), 64)},
        {"bmp without width", bmp(Bmp(54, 0, 4, 24, 0), 64)},
        {"bmp without height", bmp(Bmp(54, 4, 0, 24, 0), 64)},
        {"bmp with pixels beyond the end", bmp(Bmp(0xFFFFFFF0, 4, 4, 24, 0), 64)},
        {"bmp with pixels at the end", bmp(Bmp(118, 4, 4, 24, 0), 64)},
        {"bmp with endless palette", bmp(Bmp(0, 4, 4, 8, 0, 0x7FFFFFFF), 64)},
        {"bmp of 3 bits", bmp(Bmp(54, 4, 4, 3, 0), 64)},
        {"bmp with a JPEG within", bmp(Bmp(54, 4, 4, 0, 4), 64)},
        {"bmp of 24 bits, run-length coded", bmp(Bmp(54, 4, 4, 24, 1), 64)},
        {"bmp with a header of no known size", bmp(Bmp(54, 4, 4, 24, 0, 0, 41), 64)},
        {"bmp with a header beyond the end", bmp(Bmp(54, 4, 4, 24, 0, 0, 0xFFFFFFFF), 64)},
        {"bmp with a mask in two parts",
         Bmp(66, 1, 1, 32, 3).Low(4, 0xF0F0).Low(4, 0xF).Low(4, 0xF0000).Low(4, 0)},
        {"bmp with a mask beyond 16 bits",
         Bmp(66, 1, 1, 16, 3).Low(4, 0x1F0000).Low(4, 0x3E0).Low(4, 0x1F).Low(4, 0)},
        {"bmp whose masks are cut off", Bmp(54, 1, 1, 32, 3).Low(4, 0xFF)},
        {"run-length code that jumps out to the right",
         Bmp(54, 4, 4, 8, 1, 1).Low(2, 0x0200).Low(2, 0x0005).Low(2, 0x0100)},
        {"run-length code that jumps out at the top",
         Bmp(54, 4, 4, 8, 1, 1).Low(2, 0x0200).Low(2, 0x0400).Low(2, 0x0100)},
        {"run-length code beyond the last row",
         Bmp(54, 1, 1, 8, 1, 1).Low(2, 0).Low(2, 0x0101).Low(2, 0x0100)},
        {"run-length code of more ends of rows than rows",
         Bmp(54, 1, 1, 8, 1, 1).Low(2, 0).Low(2, 0).Low(2, 0).Low(2, 0x0100)},
        {"run-length code that promises more bytes",
         Bmp(54, 4, 4, 8, 1, 1).Low(2, 0xFF00).Low(4, 0)},
        {"run-length picture of 64 million pixels", Bmp(54, 8192, 8192, 8, 1, 1).Low(2, 0x0100)},
        {"png of the largest sides",
         Png(0x7FFFFFFF, 0x7FFFFFFF, 16, 6).Chunk(FileMaker().Text("IDAT").Low(8, 0))},
        {"png of 64 million pixels in a few bytes",
         Png(8192, 8192, 8, 6).Chunk(FileMaker().Text("IDAT").Low(8, 0))},
        {"png without width", Png(0, 1, 8, 2).Chunk(FileMaker().Text("IDAT").Low(8, 0))},
        {"png of an unknown kind", Png(1, 1, 8, 5).Chunk(FileMaker().Text("IDAT").Low(8, 0))},
        {"png whose palette is missing", Png(1, 1, 8, 3).Chunk(FileMaker().Text("IDAT").Low(8, 0))},
        {"png with a chunk without end", Png(1, 1, 8, 2).High(4, 0x7FFFFFFF).Text("IDAT")},
        {"gif of the largest screen", Gif(65535, 65535, 0, 0, 1, 1)},
        {"gif of a screen of 64 million pixels", Gif(8192, 8192, 0, 0, 1, 1)},
        {"gif with a picture far out", Gif(1, 1, 65535, 65535, 1, 1)},
        {"gif of a picture larger than its code", Gif(2, 1, 0, 0, 2, 1)},
        {"gif of a picture without width", Gif(1, 1, 0, 0, 0, 1)},
        {"gif without picture", FileMaker().Text("GIF89a").Low(2, 1).Low(2, 1).Low(3, 0).Text(";")},
        {"jpeg of the largest sides", JpegOfSize(65500, 65500)},
        {"jpeg of 64 million pixels", JpegOfSize(8192, 8192)},
        {"jpeg of no width", JpegOfSize(0, 32)},
        {"jpeg of a height that is never told", JpegOfSize(48, 0)},
        {"jpeg that is only its mark", FileMaker().High(4, 0xFFD8FFD9)},
        {"jpeg of 12 bits", WithBytes(FixtureBytes("full-colour.jpg"), 0x9E + 4, 12, 0)},
        {"nothing", Bytes()},
        {"a text", FileMaker().Text("no picture at all")},
    };
}

long PeakKilobytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

TEST(HostilePicture, is_refused_at_once_and_takes_no_memory) {
    for (const HostileCase& hostile : HostileCases()) {
        const long before = PeakKilobytes();
        const auto start = std::chrono::steady_clock::now();
        clsDib dib;
        EXPECT_FALSE(dib.LoadFromMemory(hostile.File)) << hostile.Name;
        EXPECT_TRUE(dib.Empty()) << hostile.Name;
        EXPECT_EQ(dib.eType, PictureKind::None) << hostile.Name;
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1))
            << hostile.Name;
        EXPECT_LT(PeakKilobytes() - before, 32 * 1024) << hostile.Name;
    }
}

TEST(HostilePicture, differs_from_a_readable_one_by_its_fault_alone) {
    const Bytes readable[] = {
        Bmp(54, 4, 4, 8, 1, 1).Low(2, 0x0200).Low(2, 0x0304).Low(2, 0x0100),
        Bmp(54, 1, 1, 8, 1, 1).Low(2, 0x0101).Low(2, 0),
        Bmp(66, 1, 1, 32, 3).Low(4, 0xFF0000).Low(4, 0xFF00).Low(4, 0xFF).Low(4, 0),
        Bmp(66, 1, 1, 16, 3).Low(4, 0x7C00).Low(4, 0x3E0).Low(4, 0x1F).Low(4, 0),
        Gif(1, 1, 0, 0, 1, 1),
        Gif(3, 2, 1, 1, 1, 1),
        JpegOfSize(48, 32),
    };
    for (const Bytes& file : readable) {
        clsDib dib;
        EXPECT_TRUE(dib.LoadFromMemory(file)) << &file - readable;
    }
}

TEST(HostilePicture, of_many_empty_scans_is_refused) {
    Bytes file = FixtureBytes("progressive.jpg");
    // The last scan of the file, from its SOS marker on, over and over.
    std::size_t scan = 0;
    for (std::size_t at = 0; at + 1 < file.size(); ++at)
        if (file[at] == 0xFF && file[at + 1] == 0xDA) scan = at;
    const Bytes last(file.begin() + static_cast<std::ptrdiff_t>(scan), file.end() - 2);
    file.resize(file.size() - 2);
    for (int i = 0; i < 200; ++i) file.insert(file.end(), last.begin(), last.end());
    file.push_back(0xFF);
    file.push_back(0xD9);
    clsDib dib;
    EXPECT_FALSE(dib.LoadFromMemory(file));
}

}  // namespace
}  // namespace tamber::test

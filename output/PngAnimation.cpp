#include "output/PngAnimation.h"

#include <zlib.h>

#include <cmath>
#include <string_view>

#include "output/PictureFile.h"

namespace tamber {

namespace {

constexpr std::size_t SignatureBytes = 8;
constexpr std::size_t ChunkRest = 12;
/// Times are told as parts of a second; a movie's rate is a number of 256ths.
constexpr double RateUnit = 256;

void PutLong(Bytes& to, std::uint32_t value, int bytes = 4) {
    for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8)
        to.push_back(static_cast<Byte>(value >> shift));
}

std::uint32_t LongAt(ByteView bytes) {
    return std::uint32_t{bytes[0]} << 24 | std::uint32_t{bytes[1]} << 16 |
           std::uint32_t{bytes[2]} << 8 | bytes[3];
}

/// Length, name, data, and the checksum of the last two.
void PutChunk(Bytes& to, std::string_view name, ByteView data) {
    PutLong(to, static_cast<std::uint32_t>(data.size()));
    const std::size_t begin = to.size();
    to.insert(to.end(), name.begin(), name.end());
    to.insert(to.end(), data.begin(), data.end());
    PutLong(to, static_cast<std::uint32_t>(
                    crc32(0, to.data() + begin, static_cast<uInt>(to.size() - begin))));
}

/// Hands over the data of each chunk of that name of a PNG file.
template <class Visit>
void ForEachChunk(ByteView png, std::string_view name, Visit visit) {
    std::size_t at = SignatureBytes;
    while (at + ChunkRest <= png.size()) {
        const std::size_t length = LongAt(png.subspan(at));
        const auto* tag = reinterpret_cast<const char*>(png.data() + at + 4);
        if (std::string_view(tag, 4) == name) visit(png.subspan(at + 8, length));
        at += ChunkRest + length;
    }
}

}  // namespace

void PngAnimation::PutControl(const ChangedBox& box) {
    Bytes control;
    PutLong(control, sequence_++);
    for (const Long value : {box.Width, box.Height, box.Left, box.Top})
        PutLong(control, static_cast<std::uint32_t>(value));
    PutLong(control, static_cast<std::uint32_t>(RateUnit), 2);
    PutLong(control, static_cast<std::uint32_t>(std::lround(format_.Rate * RateUnit)), 2);
    // It stays for the next one, and takes the place of the pixels that it covers.
    PutLong(control, 0, 2);
    PutChunk(chunks_, "fcTL", control);
}

bool PngAnimation::Add(const Raster& picture) {
    const bool isFirst = count_++ == 0;
    ChangedBox box{0, 0, picture.Width(), picture.Height()};
    if (!isFirst) box = ChangeBetween(shown_, picture);
    if (box.Width == 0) box = {0, 0, 1, 1};
    const Bytes png = PngBytes(isFirst ? picture : PartOf(picture, box));
    if (png.size() < SignatureBytes) return false;
    PutControl(box);
    if (isFirst) {
        head_.assign(png.begin(), png.begin() + SignatureBytes);
        ForEachChunk(png, "IHDR", [this](ByteView data) { PutChunk(head_, "IHDR", data); });
    }
    ForEachChunk(png, "IDAT", [&](ByteView data) {
        if (isFirst) return PutChunk(chunks_, "IDAT", data);
        Bytes numbered;
        PutLong(numbered, sequence_++);
        numbered.insert(numbered.end(), data.begin(), data.end());
        PutChunk(chunks_, "fdAT", numbered);
    });
    shown_ = picture;
    return true;
}

Bytes PngAnimation::Finish() {
    if (count_ == 0) return {};
    Bytes file = std::move(head_);
    Bytes control;
    PutLong(control, count_);
    PutLong(control, static_cast<std::uint32_t>(format_.Loops));
    PutChunk(file, "acTL", control);
    file.insert(file.end(), chunks_.begin(), chunks_.end());
    PutChunk(file, "IEND", {});
    return file;
}

}  // namespace tamber

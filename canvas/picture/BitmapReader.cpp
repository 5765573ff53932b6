#include "canvas/picture/BitmapReader.h"

#include <algorithm>

#include "media/PictureLimits.h"
#include "media/clsDib.h"
#include "swf/SwfBits.h"
#include "swf/mdlZlib.h"
#include "swf/tags/TagCodes.h"
#include "vector/SwfJpeg.h"

namespace tamber {

namespace {

enum LosslessFormat : Long { ColorMapped = 3, FifteenBits = 4, ThirtyTwoBits = 5 };

std::uint32_t Pixel(std::uint32_t a, std::uint32_t r, std::uint32_t g, std::uint32_t b) {
    return a << 24 | r << 16 | g << 8 | b;
}

/// Colours of a movie are premultiplied; those brighter than that allows are held.
std::uint32_t HeldPixel(std::uint32_t a, std::uint32_t r, std::uint32_t g, std::uint32_t b) {
    return Pixel(a, std::min(r, a), std::min(g, a), std::min(b, a));
}

/// The pixels of a lossless picture behind its size.
class LosslessReader {
public:
    LosslessReader(ByteView data, bool hasAlpha, Raster& raster)
        : data_(data), hasAlpha_(hasAlpha), raster_(raster) {}

    /// False when the data ends early.
    bool Read(Long format, std::size_t colors) {
        if (format == ColorMapped) return ReadMapped(colors);
        return format == FifteenBits ? ReadFifteen() : ReadThirtyTwo();
    }

private:
    std::size_t Width() const { return static_cast<std::size_t>(raster_.Width()); }
    std::size_t Height() const { return static_cast<std::size_t>(raster_.Height()); }
    static std::size_t WholeWords(std::size_t bytes) { return (bytes + 3) / 4 * 4; }

    bool ReadMapped(std::size_t colors) {
        const std::size_t entry = hasAlpha_ ? 4 : 3;
        const std::size_t stride = WholeWords(Width());
        if (data_.size() < colors * entry + stride * Height()) return false;
        std::uint32_t table[256] = {};
        for (std::size_t i = 0; i < colors; ++i) {
            const Byte* color = data_.data() + i * entry;
            table[i] = HeldPixel(hasAlpha_ ? color[3] : 255, color[0], color[1], color[2]);
        }
        const Byte* row = data_.data() + colors * entry;
        for (Long y = 0; y < raster_.Height(); ++y, row += stride)
            std::transform(row, row + Width(), raster_.Row(y),
                           [&table](Byte index) { return table[index]; });
        return true;
    }
    bool ReadFifteen() {
        const std::size_t stride = WholeWords(2 * Width());
        if (data_.size() < stride * Height()) return false;
        const auto widen = [](std::uint32_t value) { return (value & 31) * 255 / 31; };
        const Byte* row = data_.data();
        for (Long y = 0; y < raster_.Height(); ++y, row += stride) {
            for (std::size_t x = 0; x < Width(); ++x) {
                const auto value = static_cast<std::uint32_t>(row[2 * x] << 8 | row[2 * x + 1]);
                raster_.Row(y)[x] = Pixel(255, widen(value >> 10), widen(value >> 5), widen(value));
            }
        }
        return true;
    }
    bool ReadThirtyTwo() {
        if (data_.size() < 4 * Width() * Height()) return false;
        const Byte* pixel = data_.data();
        for (std::uint32_t& to : raster_.Pixels()) {
            to = HeldPixel(hasAlpha_ ? pixel[0] : 255, pixel[1], pixel[2], pixel[3]);
            pixel += 4;
        }
        return true;
    }

    ByteView data_;
    bool hasAlpha_;
    Raster& raster_;
};

std::size_t LosslessBytes(Long format, Long width, Long height, std::size_t colors) {
    const auto w = static_cast<std::size_t>(width) + 3;
    return 4 * colors + static_cast<std::size_t>(height) * w * (format == ColorMapped ? 1 : 4);
}

std::optional<Raster> ReadLossless(SwfBits bits, bool hasAlpha) {
    const auto format = static_cast<Long>(bits.GetUI(1));
    const auto width = static_cast<Long>(bits.GetUI(2));
    const auto height = static_cast<Long>(bits.GetUI(2));
    if (format < ColorMapped || format > ThirtyTwoBits || !PictureSizeAllowed(width, height))
        return std::nullopt;
    const std::size_t colors = format == ColorMapped ? bits.GetUI(1) + 1 : 0;
    const auto data =
        mdlZlib::ZlibUncompress(bits.Rest(), LosslessBytes(format, width, height, colors));
    if (!data) return std::nullopt;
    Raster raster(width, height);
    if (!LosslessReader(*data, hasAlpha, raster).Read(format, colors)) return std::nullopt;
    return raster;
}

Raster ToRaster(clsDib dib) {
    dib.ChangeTo32();
    Raster raster(dib.Width(), dib.Height());
    for (Long y = 0; y < raster.Height(); ++y) {
        const Byte* from = dib.Row(y);
        std::uint32_t* to = raster.Row(y);
        for (Long x = 0; x < raster.Width(); ++x, from += 4) {
            const std::uint32_t alpha = dib.blHasBlend || dib.blHasPalTrans ? from[3] : 255;
            const auto times = [alpha](std::uint32_t value) { return value * alpha / 255; };
            to[x] = Pixel(alpha, times(from[2]), times(from[1]), times(from[0]));
        }
    }
    return raster;
}

std::optional<Raster> ReadPicture(Bytes file) {
    clsDib dib;
    if (!dib.LoadFromMemory(std::move(file)) || dib.Empty()) return std::nullopt;
    return ToRaster(std::move(dib));
}

Bytes WithoutLeadingMarks(ByteView picture, ByteView tables) {
    const bool isJpeg = picture.size() > 2 && picture[0] == 0xFF;
    if (isJpeg) return JoinJpegTables(tables, picture);
    return {picture.begin(), picture.end()};
}

/// A JPEG whose opacity follows it as a zlib stream of a byte a pixel.
std::optional<Raster> ReadJpegWithAlpha(SwfBits bits) {
    const std::size_t length = bits.GetUI(4);
    const ByteView picture = bits.Take(length);
    std::optional<Raster> raster = ReadPicture(WithoutLeadingMarks(picture, {}));
    if (!raster) return std::nullopt;
    const std::size_t pixels = raster->Pixels().size();
    const auto alpha = mdlZlib::ZlibUncompress(bits.Rest(), pixels);
    if (!alpha || alpha->size() < pixels) return raster;
    for (std::size_t i = 0; i < pixels; ++i) {
        std::uint32_t& pixel = raster->Pixels()[i];
        pixel = HeldPixel((*alpha)[i], pixel >> 16 & 255, pixel >> 8 & 255, pixel & 255);
    }
    return raster;
}

std::optional<Raster> ReadRaster(Long tag, ByteView body, ByteView tables) {
    switch (tag) {
        case TagCode::DefineBitsLossless:
        case TagCode::DefineBitsLossless2:
            return ReadLossless(SwfBits(body), tag == TagCode::DefineBitsLossless2);
        case TagCode::DefineBitsJPEG3:
            return ReadJpegWithAlpha(SwfBits(body));
        case TagCode::DefineBits:
            return ReadPicture(WithoutLeadingMarks(body, tables));
        default:
            return ReadPicture(WithoutLeadingMarks(body, {}));
    }
}

}  // namespace

std::shared_ptr<BitmapCharacter> ReadBitmapTag(Long tag, ByteView body, ByteView tables) {
    std::optional<Raster> raster = ReadRaster(tag, body, tables);
    if (!raster || raster->IsEmpty()) return nullptr;
    return std::make_shared<BitmapCharacter>(std::move(*raster));
}

}  // namespace tamber

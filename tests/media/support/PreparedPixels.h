#pragma once

#include <zlib.h>

#include <vector>

#include "media/BitmapTreatment.h"

namespace tamber::test {

/// A finished lossless buffer read back as a player does: colours multiplied by alpha, top row
/// first. Empty when the stream is damaged or of the wrong length. A pixel of 16 bits whose highest
/// bit is not clear has alpha 0.
class PreparedPixels {
public:
    explicit PreparedPixels(const BitmapBuffers& buffers)
        : width_(static_cast<std::size_t>(buffers.Width)),
          height_(static_cast<std::size_t>(buffers.height)) {
        const bool mapped = buffers.BitCount == 8;
        const auto pixelBytes = static_cast<std::size_t>(buffers.BitCount / 8);
        const std::size_t stride = (width_ * pixelBytes + 3) / 4 * 4;
        const std::size_t palette = mapped ? 1024 : 0;
        if (!Inflate(buffers.bufBmp, palette + stride * height_)) return;
        for (std::size_t y = 0; y < height_; ++y)
            for (std::size_t x = 0; x < width_; ++x)
                pixels_.push_back(Read(palette + y * stride + x * pixelBytes, buffers.BitCount));
    }

    const std::vector<RgbQuad>& Pixels() const { return pixels_; }

private:
    bool Inflate(const Bytes& stream, std::size_t size) {
        data_.resize(size + 1);
        uLongf length = data_.size();
        return uncompress(data_.data(), &length, stream.data(), stream.size()) == Z_OK &&
               length == size;
    }

    RgbQuad Read(std::size_t at, Long bitCount) const {
        const Byte* data = data_.data() + at;
        if (bitCount == 8) {
            const Byte* entry = data_.data() + data[0] * 4;
            return RgbQuad{entry[2], entry[1], entry[0], entry[3]};
        }
        if (bitCount == 16) {
            const int word = data[0] << 8 | data[1];
            const Byte clear = word < 0x8000 ? 255 : 0;
            return RgbQuad{FiveBits(word), FiveBits(word >> 5), FiveBits(word >> 10), clear};
        }
        return RgbQuad{data[3], data[2], data[1], data[0]};
    }

    static Byte FiveBits(int value) {
        return static_cast<Byte>(((value & 31) * 255 * 2 + 31) / 62);
    }

    std::size_t width_;
    std::size_t height_;
    Bytes data_;
    std::vector<RgbQuad> pixels_;
};

}  // namespace tamber::test

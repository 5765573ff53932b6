#include <algorithm>
#include <array>
#include <bit>
#include <utility>

#include "media/clsDib.h"

namespace tamber {

namespace {

/// Runs `convert(source row, target row)` over all rows in memory order and returns the new array.
template <class Convert>
Bytes ConvertRows(const clsDib& dib, Long depth, Convert convert) {
    const std::size_t sourceStride = dib.Stride();
    const std::size_t targetStride = clsDib::StrideOf(dib.Width(), depth);
    const auto rows = static_cast<std::size_t>(dib.Height());
    Bytes target(targetStride * rows);
    for (std::size_t row = 0; row < rows; ++row)
        convert(dib.Bits.data() + row * sourceStride, target.data() + row * targetStride);
    return target;
}

/// One channel of a pixel with masks: its bits brought to 0 to 255.
class MaskedChannel {
public:
    /// A channel that is not there gives `absent`.
    MaskedChannel(std::uint32_t mask, Byte absent) : mask_(mask) {
        const int bits = std::popcount(mask);
        const int lowest = mask == 0 ? 0 : std::countr_zero(mask);
        shift_ = lowest + std::max(bits - 8, 0);
        const int highest = (1 << std::min(bits, 8)) - 1;
        table_[0] = mask == 0 ? absent : Byte{0};
        for (int value = 1; value <= highest; ++value)
            table_[static_cast<std::size_t>(value)] =
                static_cast<Byte>((value * 255 + highest / 2) / highest);
    }

    Byte Value(std::uint32_t pixel) const { return table_[(pixel & mask_) >> shift_]; }

private:
    std::uint32_t mask_;
    int shift_ = 0;
    std::array<Byte, 256> table_{};
};

struct MaskedPixel {
    MaskedChannel Red;
    MaskedChannel Green;
    MaskedChannel Blue;
    MaskedChannel Alpha;

    explicit MaskedPixel(const std::array<std::uint32_t, 4>& masks)
        : Red(masks[0], 0), Green(masks[1], 0), Blue(masks[2], 0), Alpha(masks[3], 255) {}

    void Store(std::uint32_t pixel, Byte* target) const {
        target[0] = Blue.Value(pixel);
        target[1] = Green.Value(pixel);
        target[2] = Red.Value(pixel);
        target[3] = Alpha.Value(pixel);
    }
};

std::uint32_t Word16(const Byte* source) {
    return static_cast<std::uint32_t>(source[0] | source[1] << 8);
}

std::uint32_t Word32(const Byte* source) {
    return Word16(source) | Word16(source + 2) << 16;
}

Bytes Masked16to32(const clsDib& dib, const std::array<std::uint32_t, 4>& masks) {
    const MaskedPixel pixel(masks);
    const auto width = static_cast<std::size_t>(dib.Width());
    return ConvertRows(dib, 32, [&pixel, width](const Byte* source, Byte* target) {
        for (std::size_t x = 0; x < width; ++x) pixel.Store(Word16(source + x * 2), target + x * 4);
    });
}

constexpr std::array<std::uint32_t, 4> FiveBitMasks{0x7C00, 0x03E0, 0x001F, 0};

}  // namespace

void clsDib::Change1to8() {
    if (BitCount() != 1) return;
    const auto width = static_cast<std::size_t>(Width());
    SetBits(ConvertRows(*this, 8,
                        [width](const Byte* source, Byte* target) {
                            for (std::size_t x = 0; x < width; ++x)
                                target[x] = source[x / 8] >> (7 - x % 8) & 1;
                        }),
            8);
}

void clsDib::Change4to8() {
    if (BitCount() != 4) return;
    const auto width = static_cast<std::size_t>(Width());
    SetBits(ConvertRows(*this, 8,
                        [width](const Byte* source, Byte* target) {
                            for (std::size_t x = 0; x < width; ++x)
                                target[x] = source[x / 2] >> (x % 2 == 0 ? 4 : 0) & 15;
                        }),
            8);
}

void clsDib::Change8to32() {
    if (BitCount() != 8) return;
    const auto width = static_cast<std::size_t>(Width());
    const auto& colors = dib.bmiColors;
    SetBits(ConvertRows(*this, 32,
                        [width, &colors](const Byte* source, Byte* target) {
                            for (std::size_t x = 0; x < width; ++x, target += 4) {
                                const RgbQuad color = colors[source[x]];
                                target[0] = color.rgbBlue;
                                target[1] = color.rgbGreen;
                                target[2] = color.rgbRed;
                                target[3] = color.rgbReserved;
                            }
                        }),
            32);
}

void clsDib::Change16to32() {
    if (BitCount() != 16 || dib.bmiHeader.biCompression != DibRgb) return;
    SetBits(Masked16to32(*this, FiveBitMasks), 32);
}

void clsDib::ChangeBF16to32() {
    if (BitCount() != 16 || dib.bmiHeader.biCompression != DibBitFields) return;
    SetBits(Masked16to32(*this, dib.bmiMasks), 32);
}

void clsDib::Change24to32() {
    if (BitCount() != 24) return;
    const auto width = static_cast<std::size_t>(Width());
    SetBits(ConvertRows(*this, 32,
                        [width](const Byte* source, Byte* target) {
                            for (std::size_t x = 0; x < width; ++x, source += 3, target += 4) {
                                target[0] = source[0];
                                target[1] = source[1];
                                target[2] = source[2];
                                target[3] = 255;
                            }
                        }),
            32);
}

void clsDib::ChangeBF32to32() {
    if (BitCount() != 32 || dib.bmiHeader.biCompression != DibBitFields) return;
    const MaskedPixel pixel(dib.bmiMasks);
    for (std::size_t at = 0; at < Bits.size(); at += 4)
        pixel.Store(Word32(Bits.data() + at), Bits.data() + at);
    dib.bmiHeader.biCompression = DibRgb;
}

void clsDib::ChangePaletteTo8() {
    Change1to8();
    Change4to8();
}

void clsDib::ChangeTo32() {
    ChangePaletteTo8();
    Change8to32();
    Change16to32();
    ChangeBF16to32();
    Change24to32();
    ChangeBF32to32();
}

void clsDib::ChangeTopBottom() {
    const std::size_t stride = Stride();
    const auto rows = static_cast<std::size_t>(Height());
    for (std::size_t row = 0; row < rows / 2; ++row) {
        Byte* upper = Bits.data() + row * stride;
        Byte* lower = Bits.data() + (rows - 1 - row) * stride;
        std::swap_ranges(upper, upper + stride, lower);
    }
    dib.bmiHeader.biHeight = -dib.bmiHeader.biHeight;
}

}  // namespace tamber

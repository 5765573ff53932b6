#pragma once

#include <array>

#include "platform/types.h"

namespace tamber {

/// One palette entry or background colour, in the byte order of a DIB.
struct RgbQuad {
    Byte rgbBlue = 0;
    Byte rgbGreen = 0;
    Byte rgbRed = 0;
    /// Alpha of the entry, 255 being opaque. A palette in a file has no use for this byte.
    Byte rgbReserved = 255;
};

/// Values of `biCompression` that an image in memory can have.
inline constexpr std::uint32_t DibRgb = 0;
inline constexpr std::uint32_t DibBitFields = 3;

struct DibHeader {
    std::uint32_t biSize = 40;
    Long biWidth = 0;
    /// Rows; negative when the first row in memory is the top one.
    Long biHeight = 0;
    std::uint16_t biPlanes = 1;
    std::uint16_t biBitCount = 0;
    std::uint32_t biCompression = DibRgb;
    std::uint32_t biSizeImage = 0;
    Long biXPelsPerMeter = 0;
    Long biYPelsPerMeter = 0;
    /// Palette entries that the file gives.
    std::uint32_t biClrUsed = 0;
    std::uint32_t biClrImportant = 0;
};

struct DibInfo {
    DibHeader bmiHeader;
    std::array<RgbQuad, 256> bmiColors;
    /// Bits of red, green, blue and alpha in a pixel, for `DibBitFields` only. A mask of 0 stands
    /// for a channel that is not there.
    std::array<std::uint32_t, 4> bmiMasks{};
};

}  // namespace tamber

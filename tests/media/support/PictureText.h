#pragma once

#include <iomanip>
#include <ostream>
#include <sstream>
#include <vector>

#include "media/clsDib.h"

namespace tamber {

inline bool operator==(const RgbQuad& a, const RgbQuad& b) {
    return a.rgbBlue == b.rgbBlue && a.rgbGreen == b.rgbGreen && a.rgbRed == b.rgbRed &&
           a.rgbReserved == b.rgbReserved;
}

/// Red, green, blue, alpha in hexadecimal digits, for messages of failed tests.
inline std::ostream& operator<<(std::ostream& out, const RgbQuad& pixel) {
    std::ostringstream text;
    text << std::hex << std::setfill('0');
    for (const Byte value : {pixel.rgbRed, pixel.rgbGreen, pixel.rgbBlue, pixel.rgbReserved})
        text << std::setw(2) << int{value};
    return out << text.str();
}

namespace test {

/// A pixel named in the usual order.
inline RgbQuad Rgba(int red, int green, int blue, int alpha) {
    return RgbQuad{static_cast<Byte>(blue), static_cast<Byte>(green), static_cast<Byte>(red),
                   static_cast<Byte>(alpha)};
}

/// Pixels of a 32-bit image from the top left.
inline std::vector<RgbQuad> PixelsOf(const clsDib& dib) {
    std::vector<RgbQuad> pixels;
    for (Long y = 0; y < dib.Height(); ++y)
        for (Long x = 0; x < dib.Width(); ++x) pixels.push_back(dib.Pixel(x, y));
    return pixels;
}

/// A 32-bit image of given pixels, `width` a row.
inline clsDib DibOf(Long width, const std::vector<RgbQuad>& pixels) {
    clsDib dib;
    const auto count = static_cast<Long>(pixels.size());
    dib.Create(width, count / width, 32);
    for (Long i = 0; i < count; ++i) {
        const RgbQuad& from = pixels[static_cast<std::size_t>(i)];
        Byte* to = dib.Row(i / width) + static_cast<std::size_t>(i % width) * 4;
        to[0] = from.rgbBlue;
        to[1] = from.rgbGreen;
        to[2] = from.rgbRed;
        to[3] = from.rgbReserved;
    }
    return dib;
}

}  // namespace test
}  // namespace tamber

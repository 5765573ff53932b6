#include "media/LosslessPixels.h"

#include <algorithm>
#include <utility>

namespace tamber {

namespace {

Byte Premultiplied(Byte value, Byte alpha) {
    return static_cast<Byte>(value * alpha / 255);
}

Bytes PalettePixels(const clsDib& dib) {
    Bytes pixels;
    pixels.reserve(dib.dib.bmiColors.size() * 4 + dib.Bits.size());
    for (const RgbQuad& color : dib.dib.bmiColors) {
        const Byte alpha = color.rgbReserved;
        pixels.push_back(Premultiplied(color.rgbRed, alpha));
        pixels.push_back(Premultiplied(color.rgbGreen, alpha));
        pixels.push_back(Premultiplied(color.rgbBlue, alpha));
        pixels.push_back(alpha);
    }
    pixels.insert(pixels.end(), dib.Bits.begin(), dib.Bits.end());
    return pixels;
}

/// The bit above the channels is kept clear, as a movie has it.
void SwapPixels16(Bytes& bits) {
    for (std::size_t at = 0; at + 1 < bits.size(); at += 2) {
        std::swap(bits[at], bits[at + 1]);
        bits[at] &= 0x7F;
    }
}

void SwapPixels32(Bytes& bits) {
    for (std::size_t at = 0; at < bits.size(); at += 4) {
        std::swap(bits[at], bits[at + 3]);
        std::swap(bits[at + 1], bits[at + 2]);
    }
}

}  // namespace

void PremultiplyColours(clsDib& dib) {
    for (std::size_t at = 0; at < dib.Bits.size(); at += 4) {
        Byte* pixel = dib.Bits.data() + at;
        if (pixel[3] == 255) continue;
        for (std::size_t channel = 0; channel < 3; ++channel)
            pixel[channel] = Premultiplied(pixel[channel], pixel[3]);
    }
}

Bytes LosslessPixels(clsDib dib) {
    if (dib.blBottomUp()) dib.ChangeTopBottom();
    switch (dib.BitCount()) {
        case 8:
            return PalettePixels(dib);
        case 16:
            SwapPixels16(dib.Bits);
            break;
        default:
            PremultiplyColours(dib);
            SwapPixels32(dib.Bits);
    }
    return std::move(dib.Bits);
}

}  // namespace tamber

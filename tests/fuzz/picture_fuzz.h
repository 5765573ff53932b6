#pragma once

#include <cstddef>
#include <utility>

#include "media/BitmapTreatment.h"

namespace tamber::test {

/// Options chosen by the bits of one number, so that the fuzzer reaches every treatment.
inline BitmapOptions OptionsOf(Byte choice) {
    BitmapOptions options;
    options.blToumei = (choice & 1) != 0;
    options.blShading = (choice & 2) != 0;
    options.ShadingType = (choice & 4) != 0 ? ShadingBlur : ShadingColorRange;
    options.blJpegComp = (choice & 8) != 0;
    options.ShadingNum = choice >> 4;
    return options;
}

/// Reads a picture from memory and, if it is no large one, prepares it in a way that the last byte
/// chooses.
inline void ReadAndPrepare(const Byte* data, std::size_t size) {
    constexpr Long SmallEnough = 1 << 16;
    clsDib dib;
    if (!dib.LoadFromMemory(Bytes(data, data + size))) return;
    if (dib.Width() * dib.Height() > SmallEnough) return;
    BitmapBuffers buffers;
    PrepareBitmap(std::move(dib), OptionsOf(data[size - 1]), buffers);
}

}  // namespace tamber::test

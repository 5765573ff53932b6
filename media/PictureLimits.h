#pragma once

#include <cstddef>
#include <cstdint>

namespace tamber {

/// Longest side of a picture in pixels: the longest that a JPEG can be written with, so that every
/// picture that was read can also be compressed.
inline constexpr std::int64_t MaxPictureSide = 65500;
/// Most pixels of a picture, a quarter of a gigabyte at 32 bits.
inline constexpr std::int64_t MaxPicturePixels = std::int64_t{64} << 20;

inline bool PictureSizeAllowed(std::int64_t width, std::int64_t height) {
    return width > 0 && height > 0 && width <= MaxPictureSide && height <= MaxPictureSide &&
           width * height <= MaxPicturePixels;
}

/// False when a file of `fileSize` bytes is too short to code so many pixels, given the most
/// pixels that its kind can put into a byte. Small pictures are let through: what they would take
/// does no harm.
inline bool PictureFillsFile(std::int64_t pixels, std::size_t fileSize,
                             std::int64_t pixelsPerByte) {
    constexpr std::int64_t Harmless = std::int64_t{1} << 20;
    if (pixels <= Harmless) return true;
    return pixels / pixelsPerByte <= static_cast<std::int64_t>(fileSize);
}

}  // namespace tamber

#pragma once

#include "media/clsDib.h"
#include "platform/types.h"

namespace tamber {

/// What `ShadingType` tells.
inline constexpr Long ShadingColorRange = 1;
inline constexpr Long ShadingBlur = 2;

/// How a bitmap symbol's picture is treated on its way into a movie.
struct BitmapOptions {
    /// A key colour is transparent. Edge shading works on its edges and needs it.
    bool blToumei = false;
    Byte ToumeiColorRed = 0;
    Byte ToumeiColorGreen = 0;
    Byte ToumeiColorBlue = 0;
    bool blShading = false;
    /// `ShadingBlur`, or `ShadingColorRange` for every other value.
    Long ShadingType = ShadingColorRange;
    /// Reach of the blur in pixels, 0 to `clsDib::MaxBlur`, or radius of the colour range.
    Long ShadingNum = 100;
    /// Compress as JPEG with `JpegQuality`, 1 to 100.
    bool blJpegComp = false;
    Long JpegQuality = 70;
};

/// A picture as the bitmap tags wrap it.
struct BitmapBuffers {
    /// `bufBmp` is a whole JPEG stream; otherwise a zlib stream of lossless pixels.
    bool blJpeg = false;
    Bytes bufBmp;
    /// Alpha beside a JPEG: a zlib stream of one byte a pixel, top row first. Empty when opaque.
    Bytes bufAlpha;
    /// Of a lossless picture: 8 (palette), 16 (five bits a channel) or 32. Of a JPEG: that of the
    /// picture as read.
    Long BitCount = 0;
    Long Width = 0;
    Long height = 0;

    bool HasAlphaTbl() const { return !bufAlpha.empty(); }
};

/// Makes the image 32 bits deep and gives `ADib` what file and options tell, for display or for the
/// buffers. The file's own alpha is never raised.
void TreatAlpha(clsDib& dib, const BitmapOptions& options);

/// Makes the buffers of a loaded picture. The image is used up by it. False when it is empty or
/// cannot be compressed; `buffers` is then as before.
bool PrepareBitmap(clsDib dib, const BitmapOptions& options, BitmapBuffers& buffers);

/// Reads a picture file and prepares it. False when it cannot be read; `buffers` is then as before.
bool SetBitmapData(StringView path, const BitmapOptions& options, BitmapBuffers& buffers);

}  // namespace tamber

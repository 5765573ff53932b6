#pragma once

#include "media/clsDib.h"
#include "platform/types.h"

namespace tamber {

/// Pixels of an 8-, 16- or 32-bit image as a lossless bitmap tag has them, top row first.
///
/// 8 bits: 256 palette entries of red, green, blue, alpha, the colours multiplied by alpha, then
/// the indexes in rows of whole 32-bit words. 16 bits: five bits a channel, the upper byte first,
/// rows likewise. 32 bits: alpha, red, green, blue, the colours multiplied by alpha. The image is
/// used up by it.
Bytes LosslessPixels(clsDib dib);

/// Multiplies the colours of a 32-bit image by their alpha, value * alpha / 255 cut to whole
/// numbers.
void PremultiplyColours(clsDib& dib);

}  // namespace tamber

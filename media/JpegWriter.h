#pragma once

#include "media/clsDib.h"
#include "platform/types.h"

namespace tamber {

/// How finely a JPEG keeps colour beside brightness.
enum class JpegColour {
    Halved,  ///< one value for two by two pixels
    Full
};

/// Compresses the colours of a 32-bit image as a JPEG stream. `quality` is held within 1 to 100.
/// False for an image of another depth; `stream` is then empty.
bool WriteJpeg(const clsDib& dib, Long quality, JpegColour colour, Bytes& stream);

}  // namespace tamber

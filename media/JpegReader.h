#pragma once

#include "media/clsDib.h"
#include "platform/types.h"

namespace tamber {

/// Reads a JPEG file: grey becomes 8 bits with a palette of greys, colour 24 bits. Sets
/// `blPlayerJpeg`. False for a file that is damaged or cut; `dib` may then hold remains.
bool ReadJpeg(ByteView file, clsDib& dib);

}  // namespace tamber

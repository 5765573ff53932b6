#pragma once

#include "media/clsDib.h"
#include "platform/types.h"

namespace tamber {

/// Reads a BMP file of 1, 4, 8, 16, 24 or 32 bits, plain, with masks or run-length coded, with the
/// 12-byte header or one of 40 bytes up. Depth and order of rows stay, but run-length coded
/// pictures become 8 bits. False for a file that is damaged, cut or of another make; `dib` may
/// then hold remains.
bool ReadBmp(ByteView file, clsDib& dib);

}  // namespace tamber

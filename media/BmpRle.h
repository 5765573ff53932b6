#pragma once

#include "media/clsDib.h"
#include "platform/types.h"

namespace tamber {

/// Undoes the run-length coding of 4- or 8-bit pixels into a zeroed 8-bit image. Rows count in
/// memory order. A run that leaves its row is cut there; False for a jump out of the picture or
/// codes that end before the picture does.
bool DecodeBmpRle(ByteView codes, Long codedBits, clsDib& dib);

}  // namespace tamber

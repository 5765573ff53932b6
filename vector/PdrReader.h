#pragma once

#include "vector/clsVector.h"

namespace tamber {

/// Reads a PDR polygon text into `vector`: size and artwork. False when the file cannot be read.
bool ReadPdrFile(StringView path, clsVector& vector);
/// As ReadPdrFile, from the bytes of a file.
bool ReadPdrBytes(ByteView bytes, clsVector& vector);

}  // namespace tamber

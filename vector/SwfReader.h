#pragma once

#include "vector/clsVector.h"

namespace tamber {

/// Reads the shapes of a movie's first frame into `vector`: size and artwork. False when the file
/// cannot be read.
bool ReadSwfFile(StringView path, clsVector& vector);
/// As ReadSwfFile, from the bytes of a file.
bool ReadSwfBytes(ByteView bytes, clsVector& vector);

}  // namespace tamber

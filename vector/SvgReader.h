#pragma once

#include "vector/clsVector.h"

namespace tamber {

/// Reads an SVG drawing into `vector`: size, artwork, and what was left out. `extension` is "svg",
/// or "svgz" for a compressed file. False when the file cannot be read or holds nothing to draw.
bool ReadSvgFile(StringView path, StringView extension, clsVector& vector);
/// As ReadSvgFile, from the bytes of a file.
bool ReadSvgBytes(ByteView bytes, StringView extension, clsVector& vector);

}  // namespace tamber

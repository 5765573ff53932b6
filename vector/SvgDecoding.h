#pragma once

#include <optional>

#include "platform/types.h"

namespace tamber {

/// Bytes of the text in an `.svgz` file: a zlib stream, gzip members, or the text itself. Nothing
/// when it is damaged or too large.
std::optional<Bytes> UnpackSvgz(ByteView file);

/// Text of a drawing: in UTF-8 when its declaration says so, else in code page 932.
String DecodeSvg(ByteView bytes);

}  // namespace tamber

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/types.h"

namespace tamber {

/// Bytes of the text in an `.svgz` file: a zlib stream, gzip members, or the text itself. Nothing
/// when it is damaged or too large.
std::optional<Bytes> UnpackSvgz(ByteView file);

/// Text of a drawing as UTF-8, with plain spaces for ideographic ones: the file is in UTF-8 when
/// its declaration says so, else in code page 932. The view is of `bytes` themselves where they are
/// all ASCII, else of `decoded`.
std::string_view DecodeSvg(ByteView bytes, std::string& decoded);

}  // namespace tamber

#pragma once

#include "platform/types.h"

namespace tamber {

/// One JPEG stream of the tables that pictures of a movie share and a picture without them. Each
/// may be a stream with marks of beginning and end of its own, or be empty, and may begin with the
/// marks FF D9 FF D8 that old writers put there by mistake.
Bytes JoinJpegTables(ByteView tables, ByteView picture);

}  // namespace tamber

#pragma once

#include <optional>

#include "platform/types.h"

namespace tamber::mdlZlib {

/// The zlib stream of `bytes`, no longer than zlib's default level makes it, behind `head` as it
/// is.
Bytes ZlibCompress(ByteView bytes, ByteView head = {});

/// What a zlib stream holds; nothing when it is damaged, ends early, or would give more than
/// `limit` bytes. Memory grows with the output, not with what the stream claims.
std::optional<Bytes> ZlibUncompress(ByteView stream, std::size_t limit);

}  // namespace tamber::mdlZlib

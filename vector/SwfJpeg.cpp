#include "vector/SwfJpeg.h"

namespace tamber {

namespace {

constexpr Byte Mark = 0xFF;
constexpr Byte Begin = 0xD8;
constexpr Byte End = 0xD9;

bool IsMark(ByteView bytes, std::size_t at) {
    return bytes[at] == Mark && (bytes[at + 1] == Begin || bytes[at + 1] == End);
}

/// Without the marks at its front.
ByteView Body(ByteView stream) {
    while (stream.size() >= 2 && IsMark(stream, 0)) stream = stream.subspan(2);
    return stream;
}

}  // namespace

Bytes JoinJpegTables(ByteView tables, ByteView picture) {
    ByteView shared = Body(tables);
    while (shared.size() >= 2 && IsMark(shared, shared.size() - 2))
        shared = shared.first(shared.size() - 2);
    const ByteView own = Body(picture);
    Bytes joined{Mark, Begin};
    joined.reserve(joined.size() + shared.size() + own.size());
    joined.insert(joined.end(), shared.begin(), shared.end());
    joined.insert(joined.end(), own.begin(), own.end());
    return joined;
}

}  // namespace tamber

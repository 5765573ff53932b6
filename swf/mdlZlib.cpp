#include "swf/mdlZlib.h"

#include <zlib.h>

#include <algorithm>

namespace tamber::mdlZlib {

Bytes ZlibCompress(ByteView bytes) {
    Bytes result(compressBound(static_cast<uLong>(bytes.size())));
    auto size = static_cast<uLongf>(result.size());
    compress(result.data(), &size, bytes.data(), static_cast<uLong>(bytes.size()));
    result.resize(size);
    result.shrink_to_fit();
    return result;
}

std::optional<Bytes> ZlibUncompress(ByteView source, std::size_t limit) {
    constexpr std::size_t Block = 0x10000;
    z_stream zip{};
    if (inflateInit(&zip) != Z_OK) return std::nullopt;
    // zlib takes the input as non-const and does not write to it.
    zip.next_in = const_cast<Bytef*>(source.data());
    zip.avail_in = static_cast<uInt>(source.size());
    Bytes result;
    int status = Z_OK;
    while (status == Z_OK) {
        const std::size_t done = result.size();
        if (done > limit) break;
        result.resize(done + std::max(Block, done / 2));
        zip.next_out = result.data() + done;
        zip.avail_out = static_cast<uInt>(result.size() - done);
        status = inflate(&zip, Z_NO_FLUSH);
        result.resize(result.size() - zip.avail_out);
        if (status == Z_OK && zip.avail_out != 0) break;
    }
    inflateEnd(&zip);
    if (status != Z_STREAM_END || result.size() > limit) return std::nullopt;
    return result;
}

}  // namespace tamber::mdlZlib

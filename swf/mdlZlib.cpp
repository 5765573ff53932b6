#include "swf/mdlZlib.h"

#include <libdeflate.h>
#include <zlib.h>

#include <algorithm>
#include <memory>
#include <new>
#include <span>

namespace tamber::mdlZlib {

namespace {

/// Gives mostly fewer bytes than zlib's default level, in a third of its time.
constexpr int Level = 6;
/// Of few bytes, zlib's stream can be some ten bytes shorter, and takes no time either.
constexpr std::size_t ShortInput = 0x10000;

struct FreeCompressor {
    void operator()(libdeflate_compressor* compressor) const {
        libdeflate_free_compressor(compressor);
    }
};

/// Puts zlib's own stream into `stream`, where it is shorter than the `size` bytes there. The
/// result is the size of the stream that stands then.
std::size_t Shorter(ByteView bytes, std::span<Byte> stream, std::size_t size) {
    auto length = compressBound(static_cast<uLong>(bytes.size()));
    Bytes other(length);
    const int status =
        compress(other.data(), &length, bytes.data(), static_cast<uLong>(bytes.size()));
    if (status != Z_OK || length >= size) return size;
    std::copy_n(other.begin(), length, stream.begin());
    return length;
}

}  // namespace

Bytes ZlibCompress(ByteView bytes, ByteView head) {
    const std::unique_ptr<libdeflate_compressor, FreeCompressor> compressor(
        libdeflate_alloc_compressor(Level));
    if (!compressor) throw std::bad_alloc();
    const std::size_t bound = libdeflate_zlib_compress_bound(compressor.get(), bytes.size());
    const auto stream = std::make_unique_for_overwrite<Byte[]>(bound);
    std::size_t size =
        libdeflate_zlib_compress(compressor.get(), bytes.data(), bytes.size(), stream.get(), bound);
    if (bytes.size() <= ShortInput) size = Shorter(bytes, {stream.get(), bound}, size);
    Bytes result;
    result.reserve(head.size() + size);
    result.assign(head.begin(), head.end());
    result.insert(result.end(), stream.get(), stream.get() + size);
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
        result.erase(result.end() - static_cast<std::ptrdiff_t>(zip.avail_out), result.end());
        if (status == Z_OK && zip.avail_out != 0) break;
    }
    inflateEnd(&zip);
    if (status != Z_STREAM_END || result.size() > limit) return std::nullopt;
    return result;
}

}  // namespace tamber::mdlZlib

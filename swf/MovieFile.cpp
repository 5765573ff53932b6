#include "swf/MovieFile.h"

#include <algorithm>

#include "swf/mdlZlib.h"

namespace tamber {

namespace {

/// Far beyond any real movie.
constexpr std::size_t MaxInflated = std::size_t{256} << 20;
/// The length of a short head that says that a long one follows.
constexpr std::uint32_t LongLength = 63;

}  // namespace

MovieFile::MovieFile(ByteView file) {
    hasSignature_ = file.size() >= SignatureBytes && (file[0] == 'F' || file[0] == 'C') &&
                    file[1] == 'W' && file[2] == 'S';
    if (!hasSignature_) return;
    isPacked_ = file[0] == 'C';
    version_ = file[3];
    length_ = SwfBits(file.subspan(4)).GetUI(4);
    const ByteView body = file.subspan(SignatureBytes);
    if (!isPacked_) {
        body_ = body;
        return;
    }
    unpacked_ = mdlZlib::ZlibUncompress(body, std::min(length_, MaxInflated));
    if (unpacked_) body_ = *unpacked_;
}

MovieTag TakeTag(SwfBits& tags) {
    const std::uint32_t head = tags.GetUI(2);
    const std::uint32_t length = head & LongLength;
    const auto code = static_cast<Long>(head >> 6);
    return {code, tags.Take(length == LongLength ? tags.GetUI(4) : length)};
}

}  // namespace tamber

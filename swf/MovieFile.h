#pragma once

#include <optional>

#include "swf/SwfBits.h"

namespace tamber {

/// A movie file: three bytes of signature (`FWS`, or `CWS` where what follows the first 8 bytes is
/// a zlib stream), one of version, four of length; then the frame size, rate and count, and tags.
class MovieFile {
public:
    static constexpr std::size_t SignatureBytes = 8;

    /// `file` must outlive this.
    explicit MovieFile(ByteView file);
    MovieFile(const MovieFile&) = delete;
    MovieFile& operator=(const MovieFile&) = delete;

    bool HasSignature() const { return hasSignature_; }
    bool IsPacked() const { return isPacked_; }
    Long Version() const { return version_; }
    /// That of the unpacked file, as the file says it.
    std::size_t Length() const { return length_; }
    /// What stands behind the signature; nothing for a file that is no movie, or a damaged one.
    const std::optional<ByteView>& Body() const { return body_; }

private:
    bool hasSignature_ = false;
    bool isPacked_ = false;
    Long version_ = 0;
    std::size_t length_ = 0;
    std::optional<Bytes> unpacked_;
    std::optional<ByteView> body_;
};

/// A tag: its code and what stands behind its length.
struct MovieTag {
    Long Code = 0;
    ByteView Body;
};

/// The next tag. One that ends behind the last byte raises as reading past the end does.
MovieTag TakeTag(SwfBits& tags);

}  // namespace tamber

#pragma once

#include "swf/SwfTypes.h"

namespace tamber {

/// The bytes of a movie, or of one tag, read from the front: bytes little-endian, bit fields most
/// significant first. Whoever made the reader keeps the bytes. Reading past the end raises
/// 0x80040000 and leaves nothing to read.
class SwfBits {
public:
    explicit SwfBits(ByteView bytes) : rest_(bytes) {}

    /// What follows the last byte that a read touched.
    ByteView Rest() const { return rest_; }
    bool IsEmpty() const { return rest_.empty(); }
    /// The next bytes.
    ByteView Take(std::size_t count);

    /// 1 to 4 bytes; other counts raise the same error.
    std::uint32_t GetUI(Long byteCount);
    /// 0 to 32 bits.
    std::uint32_t GetBits(Long bitCount);
    Long GetSBits(Long bitCount);
    SwfRect GetRect();
    SwfMatrix GetMatrix();
    /// With or without opacity.
    SwfColorTransform GetCXForm(bool withAlpha);
    /// Text in UTF-8 from version 6 on where allowed, else in the ANSI code page. With `length` 0
    /// up to the next zero byte, which is passed over.
    String GetString(Long version, std::size_t length, bool blAllowUTF8);

private:
    /// Drops the rest of a byte that was begun.
    void Align() { pendingCount_ = 0; }
    ByteView Take(std::size_t count, StringView source);

    ByteView rest_;
    /// Bits taken but not yet given, the low `pendingCount_` ones.
    std::uint64_t pending_ = 0;
    Long pendingCount_ = 0;
};

}  // namespace tamber

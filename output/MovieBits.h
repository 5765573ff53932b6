#pragma once

#include <algorithm>

#include "platform/types.h"

namespace tamber {

/// The bytes of a movie, or of one tag, read from the front. What lies behind the end reads as zero
/// and leaves a mark.
class MovieBits {
public:
    explicit MovieBits(ByteView bytes) : rest_(bytes) {}

    bool IsDamaged() const { return isDamaged_; }
    bool IsEmpty() const { return rest_.empty(); }
    ByteView Rest() const { return rest_; }
    /// The next bytes; all that are left when these are fewer.
    ByteView Take(std::size_t count) {
        isDamaged_ = isDamaged_ || count > rest_.size();
        const ByteView taken = rest_.first(std::min(count, rest_.size()));
        rest_ = rest_.subspan(taken.size());
        return taken;
    }
    std::uint32_t U8() {
        const ByteView byte = Take(1);
        return byte.empty() ? 0 : byte[0];
    }
    std::uint32_t U16() {
        const std::uint32_t low = U8();
        return low | U8() << 8;
    }
    std::uint32_t U32() {
        const std::uint32_t low = U16();
        return low | U16() << 16;
    }
    /// Up to the next zero, which is taken too.
    void SkipText() {
        while (!IsEmpty() && U8() != 0) {
        }
    }
    /// A RECT: four fields of as many bits as the first five say.
    void SkipRect() {
        const std::size_t width = Bits(5);
        SkipBits(4 * width);
        Align();
    }
    void SkipMatrix() {
        for (int i = 0; i < 2; ++i)
            if (Bits(1) != 0) SkipBits(2 * Bits(5));
        SkipBits(2 * Bits(5));
        Align();
    }
    /// A colour transformation with opacity.
    void SkipColourTransform() {
        const std::size_t terms = Bits(1) + Bits(1);
        SkipBits(4 * terms * Bits(4));
        Align();
    }

private:
    std::size_t Bits(std::size_t count) {
        std::size_t value = 0;
        for (; count > 0; --count) {
            if (left_ == 0) {
                byte_ = U8();
                left_ = 8;
            }
            value = value << 1 | ((byte_ >> --left_) & 1);
        }
        return value;
    }
    void SkipBits(std::size_t count) { Bits(count); }
    void Align() { left_ = 0; }

    ByteView rest_;
    std::uint32_t byte_ = 0;
    std::uint32_t left_ = 0;
    bool isDamaged_ = false;
};

}  // namespace tamber

#include "swf/SwfBits.h"

#include <algorithm>

#include "platform/RuntimeError.h"
#include "platform/codepage.h"
#include "swf/TextEncoding.h"

namespace tamber {

ByteView SwfBits::Take(std::size_t count, StringView source) {
    if (count > rest_.size()) {
        rest_ = {};
        throw RuntimeError(ErrorOutOfRange, String(source), u"");
    }
    const ByteView taken = rest_.first(count);
    rest_ = rest_.subspan(count);
    return taken;
}

ByteView SwfBits::Take(std::size_t count) {
    Align();
    return Take(count, u"Take");
}

std::uint32_t SwfBits::GetUI(Long byteCount) {
    if (byteCount < 1 || byteCount > 4) throw RuntimeError(ErrorOutOfRange, u"GetUI", u"");
    Align();
    const ByteView bytes = Take(static_cast<std::size_t>(byteCount), u"GetUI");
    std::uint32_t value = 0;
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte) value = value << 8 | *byte;
    return value;
}

std::uint32_t SwfBits::GetBits(Long bitCount) {
    if (bitCount < 0 || bitCount > 32) throw RuntimeError(ErrorOutOfRange, u"GetBits", u"");
    while (pendingCount_ < bitCount) {
        pending_ = pending_ << 8 | Take(1, u"GetBits").front();
        pendingCount_ += 8;
    }
    pendingCount_ -= bitCount;
    const std::uint64_t mask = (std::uint64_t{1} << bitCount) - 1;
    return static_cast<std::uint32_t>(pending_ >> pendingCount_ & mask);
}

Long SwfBits::GetSBits(Long bitCount) {
    const std::uint32_t value = GetBits(bitCount);
    if (bitCount == 0 || bitCount == 32) return static_cast<Long>(value);
    const std::uint32_t sign = std::uint32_t{1} << (bitCount - 1);
    return static_cast<Long>((value ^ sign) - sign);
}

SwfRect SwfBits::GetRect() {
    Align();
    const auto width = static_cast<Long>(GetBits(5));
    SwfRect rect;
    rect.xMin = GetSBits(width);
    rect.xMax = GetSBits(width);
    rect.yMin = GetSBits(width);
    rect.yMax = GetSBits(width);
    return rect;
}

SwfMatrix SwfBits::GetMatrix() {
    Align();
    const auto pair = [this](Long& first, Long& second) {
        const auto width = static_cast<Long>(GetBits(5));
        first = GetSBits(width);
        second = GetSBits(width);
    };
    SwfMatrix matrix;
    if (GetBits(1) != 0) pair(matrix.ScaleX, matrix.ScaleY);
    if (GetBits(1) != 0) pair(matrix.RotateSkew0, matrix.RotateSkew1);
    pair(matrix.TranslateX, matrix.TranslateY);
    return matrix;
}

SwfColorTransform SwfBits::GetCXForm(bool withAlpha) {
    Align();
    const bool hasAdd = GetBits(1) != 0;
    const bool hasMult = GetBits(1) != 0;
    const auto width = static_cast<Long>(GetBits(4));
    SwfColorTransform transform;
    const auto terms = [&](Long& red, Long& green, Long& blue, Long& alpha) {
        for (Long* term : {&red, &green, &blue}) *term = GetSBits(width);
        if (withAlpha) alpha = GetSBits(width);
    };
    if (hasMult) terms(transform.MultR, transform.MultG, transform.MultB, transform.MultA);
    if (hasAdd) terms(transform.AddR, transform.AddG, transform.AddB, transform.AddA);
    return transform;
}

String SwfBits::GetString(Long version, std::size_t length, bool blAllowUTF8) {
    Align();
    std::size_t count = length;
    if (length == 0)
        count = static_cast<std::size_t>(std::ranges::find(rest_, Byte{0}) - rest_.begin()) + 1;
    ByteView bytes = Take(count, u"GetString");
    if (length == 0) bytes = bytes.first(count - 1);
    return UsesUtf8(version, blAllowUTF8) ? DecodeUtf8(bytes) : DecodeAnsi(bytes);
}

}  // namespace tamber

#include "swf/mdlSWFTag.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>
#include <new>

#include "platform/RuntimeError.h"
#include "platform/codepage.h"
#include "platform/rounding.h"
#include "swf/TextEncoding.h"

namespace tamber::mdlSWFTag {

namespace {

constexpr std::size_t BufferStep = 0x100000;
constexpr double Pi = 3.14159265358979;

struct FreeBytes {
    void operator()(Byte* bytes) const { std::free(bytes); }
};

/// The buffer is a block of the C heap, which moves large blocks without copying them.
struct Stream {
    std::unique_ptr<Byte[], FreeBytes> buffer;
    std::size_t capacity = 0;
    std::size_t bytePos = 0;
    /// Bits taken but not yet written, the low `pendingCount` ones.
    std::uint64_t pending = 0;
    Long pendingCount = 0;
    Long version = 6;
};

thread_local Stream stream;

[[noreturn]] void Refuse(StringView source) {
    throw RuntimeError(ErrorOutOfRange, String(source), u"");
}

void Enlarge(std::size_t capacity) {
    void* larger = std::realloc(stream.buffer.get(), capacity);
    if (larger == nullptr) throw std::bad_alloc();
    static_cast<void>(stream.buffer.release());
    stream.buffer.reset(static_cast<Byte*>(larger));
    stream.capacity = capacity;
}

Byte* Grow(std::size_t count) {
    const std::size_t needed = stream.bytePos + count;
    if (needed > stream.capacity)
        Enlarge(std::max(needed + BufferStep, stream.capacity + stream.capacity / 2));
    return stream.buffer.get() + stream.bytePos;
}

void Store(Byte* target, Long byteCount, Long value) {
    auto bits = static_cast<std::uint32_t>(value);
    for (Long i = 0; i < byteCount; ++i, bits >>= 8) target[i] = static_cast<Byte>(bits);
}

Long ToFixed(Single value) {
    if (value > 32767.0f) return std::numeric_limits<Long>::max();
    if (value < -32768.0f) return std::numeric_limits<Long>::min();
    return RoundToLong(static_cast<double>(value) * 65536.0);
}

Long Width(std::initializer_list<Long> values) {
    Long width = 0;
    for (const Long value : values) width = std::max(width, BitLength(value, false));
    return width;
}

/// A 5-bit width and the two values at that width.
void SetPair(Long a, Long b) {
    const Long width = Width({a, b});
    SetBits(5, width);
    SetBits(width, a);
    SetBits(width, b);
}

void SetOptionalPair(bool present, Long a, Long b) {
    SetBits(1, present ? 1 : 0);
    if (present) SetPair(a, b);
}

}  // namespace

Long swfVersion() {
    return stream.version;
}
void swfVersion(Long version) {
    stream.version = version;
}

void InitBuffer() {
    stream.bytePos = 0;
    stream.pending = 0;
    stream.pendingCount = 0;
}

void ReleaseBuffer() {
    InitBuffer();
    stream.buffer.reset();
    stream.capacity = 0;
}

ByteView Written() {
    SetAlign();
    return {stream.buffer.get(), stream.bytePos};
}

std::size_t swfBytePos() {
    return stream.bytePos;
}

Long swfBitPos() {
    return 7 - stream.pendingCount;
}

void SetAlign() {
    Stream& s = stream;
    if (s.pendingCount == 0) return;
    *Grow(1) = static_cast<Byte>(s.pending << (8 - s.pendingCount));
    ++s.bytePos;
    s.pendingCount = 0;
}

void SetBytes(Long byteCount, Long value) {
    if (byteCount < 1 || byteCount > 4) Refuse(u"SetBytes");
    SetAlign();
    Store(Grow(static_cast<std::size_t>(byteCount)), byteCount, value);
    stream.bytePos += static_cast<std::size_t>(byteCount);
}

void SetByteArray(ByteView bytes) {
    SetAlign();
    if (bytes.empty()) return;
    std::memcpy(Grow(bytes.size()), bytes.data(), bytes.size());
    stream.bytePos += bytes.size();
}

void SetBits(Long bitCount, Long value) {
    if (bitCount < 1 || bitCount > 32) Refuse(u"SetBits");
    Stream& s = stream;
    const std::uint64_t mask = (std::uint64_t{1} << bitCount) - 1;
    s.pending = (s.pending << bitCount) | (static_cast<std::uint32_t>(value) & mask);
    s.pendingCount += bitCount;
    Byte* target = Grow(8);
    while (s.pendingCount >= 8) {
        s.pendingCount -= 8;
        *target++ = static_cast<Byte>(s.pending >> s.pendingCount);
        ++s.bytePos;
    }
}

BitRun::State StreamRun::Begin(std::size_t maxBits) {
    return {Grow(RoomFor(maxBits)), stream.pending, stream.pendingCount};
}

void StreamRun::End(State state) {
    stream.bytePos = static_cast<std::size_t>(state.Target - stream.buffer.get());
    stream.pending = state.Pending;
    stream.pendingCount = state.Count;
}

void SetFloat(Single value) {
    SetBytes(4, std::bit_cast<Long>(value));
}

Bytes StringBytes(StringView text, bool blTerminate, bool blAllowUTF8) {
    Bytes bytes = UsesUtf8(stream.version, blAllowUTF8) ? EncodeUtf8(text) : EncodeAnsi(text);
    if (blTerminate) bytes.push_back(0);
    return bytes;
}

void SetString(StringView text, bool blTerminate, bool blAllowUTF8) {
    SetByteArray(StringBytes(text, blTerminate, blAllowUTF8));
}

void SetTagHeader(Long tagCode, Long length, bool blLong) {
    if (length < 63 && !blLong) {
        SetBytes(2, tagCode * 64 + length);
        return;
    }
    SetBytes(2, tagCode * 64 + 63);
    SetBytes(4, length);
}

void SetEndTag() {
    SetBytes(2, 0);
}

void SetRect(Long xMin, Long xMax, Long yMin, Long yMax) {
    SetAlign();
    const Long width = Width({xMin, xMax, yMin, yMax});
    SetBits(5, width);
    for (const Long value : {xMin, xMax, yMin, yMax}) SetBits(width, value);
}

void SetMatrix(const SwfMatrix& m) {
    SetAlign();
    SetOptionalPair(m.ScaleX != 0x10000 || m.ScaleY != 0x10000, m.ScaleX, m.ScaleY);
    SetOptionalPair(m.RotateSkew0 != 0 || m.RotateSkew1 != 0, m.RotateSkew0, m.RotateSkew1);
    SetPair(m.TranslateX, m.TranslateY);
}

Long ToField(double value) {
    if (std::isnan(value)) return 0;
    return RoundToLong(
        std::clamp(value, static_cast<double>(-MaxField), static_cast<double>(MaxField)));
}

Long ToColorField(std::int64_t value) {
    return static_cast<Long>(std::clamp<std::int64_t>(value, -0x4000, 0x3FFF));
}

SwfTransform ComposeTransform(Single scaleX, Single scaleY, Single angle, SwfPoint translate,
                              SwfPoint centre, Single skewX, Single skewY) {
    const auto radians = static_cast<Single>(static_cast<double>(angle) * Pi / 180.0);
    const auto s = static_cast<Single>(std::sin(static_cast<double>(radians)));
    const auto c = static_cast<Single>(std::cos(static_cast<double>(radians)));
    Single a = c * scaleX;
    Single b = s * scaleX;
    Single cc = -s * scaleY;
    Single d = c * scaleY;
    if (skewX != 0) {
        const Single shearedX = a * skewX;
        const Single shearedY = b * skewX;
        cc = shearedX + cc;
        d = shearedY + d;
    }
    if (skewY != 0) {
        const Single shearedX = cc * skewY;
        const Single shearedY = d * skewY;
        a = shearedX + a;
        b = shearedY + b;
    }
    Single px = -static_cast<Single>(centre.X);
    Single py = -static_cast<Single>(centre.Y);
    if (centre.X != 0 || centre.Y != 0) {
        const Single xa = px * a;
        const Single yc = py * cc;
        const Single xb = px * b;
        const Single yd = py * d;
        px = xa + yc;
        py = xb + yd;
    }
    return {a,
            d,
            b,
            cc,
            {ToField(static_cast<double>(px) + translate.X),
             ToField(static_cast<double>(py) + translate.Y)}};
}

void ClampToField(SwfTransform& m) {
    // The next Single below 16384 is 2 ^ -10 less.
    constexpr Single Lowest = -16384.0f;
    constexpr Single Highest = 16384.0f - 0.0009765625f;
    for (Single* term : {&m.ScaleX, &m.ScaleY, &m.RotateSkew0, &m.RotateSkew1})
        *term = std::clamp(*term, Lowest, Highest);
}

void SetTransform(const SwfTransform& m) {
    SetAlign();
    SetOptionalPair(m.ScaleX != 1.0f || m.ScaleY != 1.0f, ToFixed(m.ScaleX), ToFixed(m.ScaleY));
    SetOptionalPair(m.RotateSkew0 != 0 || m.RotateSkew1 != 0, ToFixed(m.RotateSkew0),
                    ToFixed(m.RotateSkew1));
    SetPair(m.Translate.X, m.Translate.Y);
}

void SetMatrixTransform(Single scaleX, Single scaleY, Single angle, SwfPoint translate,
                        SwfPoint centre, Single skewX, Single skewY) {
    SetTransform(ComposeTransform(scaleX, scaleY, angle, translate, centre, skewX, skewY));
}

void SetCXFormWithAlpha(const SwfColorTransform& t) {
    SetAlign();
    const bool hasMult = t.MultR != 256 || t.MultG != 256 || t.MultB != 256 || t.MultA != 256;
    const bool hasAdd = t.AddR != 0 || t.AddG != 0 || t.AddB != 0 || t.AddA != 0;
    Long width = 0;
    if (hasMult) width = Width({t.MultR, t.MultG, t.MultB, t.MultA});
    if (hasAdd) width = std::max(width, Width({t.AddR, t.AddG, t.AddB, t.AddA}));
    SetBits(1, hasAdd ? 1 : 0);
    SetBits(1, hasMult ? 1 : 0);
    SetBits(4, width);
    if (hasMult)
        for (const Long value : {t.MultR, t.MultG, t.MultB, t.MultA}) SetBits(width, value);
    if (hasAdd)
        for (const Long value : {t.AddR, t.AddG, t.AddB, t.AddA}) SetBits(width, value);
}

void SetListCount(Long count) {
    if (count < 255) {
        SetBytes(1, count);
        return;
    }
    SetBytes(1, 255);
    SetBytes(2, count);
}

std::size_t BeginTag(Long tagCode) {
    SetTagHeader(tagCode, 63, false);
    return swfBytePos();
}

void EndTag(std::size_t bodyStart) {
    SetAlign();
    PatchBytes(bodyStart - 4, 4, static_cast<Long>(swfBytePos() - bodyStart));
}

void EndTagShortest(Long tagCode, std::size_t bodyStart) {
    SetAlign();
    const std::size_t size = swfBytePos() - bodyStart;
    if (size >= 63) {
        EndTag(bodyStart);
        return;
    }
    PatchBytes(bodyStart - 6, 2, tagCode * 64 + static_cast<Long>(size));
    Byte* body = stream.buffer.get() + bodyStart;
    std::memmove(body - 4, body, size);
    stream.bytePos -= 4;
}

ByteView TakeBack(std::size_t start) {
    SetAlign();
    const ByteView bytes(stream.buffer.get() + start, stream.bytePos - start);
    stream.bytePos = start;
    return bytes;
}

void PatchBytes(std::size_t position, Long byteCount, Long value) {
    Store(stream.buffer.get() + position, byteCount, value);
}

Long BitLength(Long value, bool blUnsigned) {
    const auto magnitude = static_cast<std::uint32_t>(value < 0 ? ~value : value);
    const Long bits = 32 - std::countl_zero(magnitude);
    if (value > 0 && blUnsigned) return bits;
    return bits + 1;
}

}  // namespace tamber::mdlSWFTag

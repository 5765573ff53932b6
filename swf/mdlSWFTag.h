#pragma once

#include <bit>
#include <cstring>
#include <memory>

#include "platform/types.h"

namespace tamber {

/// RECT in twips.
struct SwfRect {
    Long xMin = 0;
    Long yMin = 0;
    Long xMax = 0;
    Long yMax = 0;
    bool operator==(const SwfRect&) const = default;
};

/// MATRIX: scales and rotations in 16.16 fixed point (65536 is 1.0), translations in twips.
struct SwfMatrix {
    Long ScaleX = 0x10000;
    Long ScaleY = 0x10000;
    Long RotateSkew0 = 0;
    Long RotateSkew1 = 0;
    Long TranslateX = 0;
    Long TranslateY = 0;
    bool operator==(const SwfMatrix&) const = default;
};

/// Colour transform: 256 is a multiplier of 1.0.
struct SwfColorTransform {
    Long MultR = 256;
    Long MultG = 256;
    Long MultB = 256;
    Long MultA = 256;
    Long AddR = 0;
    Long AddG = 0;
    Long AddB = 0;
    Long AddA = 0;
    bool operator==(const SwfColorTransform&) const = default;
};

struct SwfPoint {
    Long X = 0;
    Long Y = 0;
    bool operator==(const SwfPoint&) const = default;
};

/// A MATRIX before its terms become fixed point; the translation in twips.
struct SwfTransform {
    Single ScaleX = 1;
    Single ScaleY = 1;
    Single RotateSkew0 = 0;
    Single RotateSkew1 = 0;
    SwfPoint Translate;
};

/// The byte and bit stream through which every tag is written, and movies are read back. One buffer
/// and one cursor a thread: two threads may each build a movie.
namespace mdlSWFTag {

/// SWF version of the movie in work; version-gated writers read it.
Long swfVersion();
void swfVersion(Long version);

/// Empties the buffer for a new movie.
void InitBuffer();
/// Gives the written bytes away and releases the buffer.
Bytes TakeBuffer();
/// Takes a file's bytes for the reading side, cursor at the start.
void LoadBuffer(Bytes bytes);

/// Index of the byte being written or read.
std::size_t swfBytePos();
void swfBytePos(std::size_t position);
/// Next free bit of that byte, 7 (at a byte boundary) down to 0.
Long swfBitPos();

/// Largest value of a RECT or MATRIX field, whose width is told in five bits.
inline constexpr Long MaxField = 0x3FFFFFFF;
/// Rounds to the range of such a field.
Long ToField(double value);
/// Cuts to the range of a field of a colour transform, 15 bits.
Long ToColorField(std::int64_t value);

/// Moves to the next byte boundary.
void SetAlign();
/// The low `byteCount` bytes of `value`, little-endian; 1 to 4, else error 0x80040000.
void SetBytes(Long byteCount, Long value);
void SetByteArray(ByteView bytes);
/// The low `bitCount` bits of `value`, most significant first; 1 to 32, else error 0x80040000.
void SetBits(Long bitCount, Long value);
/// Writes many bit fields in a row, with its state at hand until the end.
class BitRun {
public:
    /// Bytes that `bitCount` bits take at most, with the room that Put needs behind them.
    static constexpr std::size_t RoomFor(std::size_t bitCount) {
        return bitCount / 8 + sizeof(std::uint64_t) + 1;
    }

    /// Writes from `target` on, which has room for all that comes.
    explicit BitRun(Byte* target) : state_{target, 0, 0} {}

    /// Fields put side by side: 1 to 56 bits, higher ones 0.
    void Put(Long bitCount, std::uint64_t value) {
        state_.Pending = state_.Pending << bitCount | value;
        state_.Count += bitCount;
        std::uint64_t bytes = state_.Pending << (64 - state_.Count);
        if constexpr (std::endian::native == std::endian::little) bytes = __builtin_bswap64(bytes);
        std::memcpy(state_.Target, &bytes, sizeof bytes);
        state_.Target += state_.Count >> 3;
        state_.Count &= 7;
    }
    /// Behind the last byte, which zero bits fill up.
    Byte* AlignedEnd() const { return state_.Target + (state_.Count > 0 ? 1 : 0); }

protected:
    /// Passed by value, so that a compiler keeps it in registers.
    struct State {
        Byte* Target;
        std::uint64_t Pending;
        Long Count;
    };
    explicit BitRun(State state) : state_(state) {}

    State state_;
};

/// A run into the stream. Nothing else may write to it until the run ends.
class StreamRun : public BitRun {
public:
    /// Makes room for `maxBits` bits.
    explicit StreamRun(std::size_t maxBits) : BitRun(Begin(maxBits)) {}
    ~StreamRun() { End(state_); }
    StreamRun(const StreamRun&) = delete;
    StreamRun& operator=(const StreamRun&) = delete;

private:
    static State Begin(std::size_t maxBits);
    static void End(State state);
};

/// Four bytes of a float, little-endian.
void SetFloat(Single value);
/// The text in the ANSI code page, or in UTF-8 from version 6 on where allowed.
void SetString(StringView text, bool blTerminate, bool blAllowUTF8);
/// Bytes that SetString writes for this text.
Bytes StringBytes(StringView text, bool blTerminate, bool blAllowUTF8);
/// Short form below 63 bytes, else (or with `blLong`) the long form.
void SetTagHeader(Long tagCode, Long length, bool blLong);
/// The two zero bytes that end a movie.
void SetEndTag();
void SetRect(Long xMin, Long xMax, Long yMin, Long yMax);
void SetMatrix(const SwfMatrix& matrix);
/// Composed of scale, rotation in degrees, translation and centre in twips, and skews as tangents;
/// each product is rounded to Single.
SwfTransform ComposeTransform(Single scaleX, Single scaleY, Single angle, SwfPoint translate,
                              SwfPoint centre, Single skewX, Single skewY);
/// Cuts the terms to what a field of 31 bits holds: five bits tell no wider one.
void ClampToField(SwfTransform& transform);
/// MATRIX of a composed transform. A term beyond 16384 takes 32 bits.
void SetTransform(const SwfTransform& transform);
/// SetTransform of ComposeTransform.
void SetMatrixTransform(Single scaleX, Single scaleY, Single angle, SwfPoint translate,
                        SwfPoint centre, Single skewX, Single skewY);
void SetCXFormWithAlpha(const SwfColorTransform& transform);
/// Count of a style list: one byte, or 255 and two bytes.
void SetListCount(Long count);

/// Opens a tag whose length is not known: writes the long header and returns where its body starts.
std::size_t BeginTag(Long tagCode);
/// Aligns and puts the length into the header opened by BeginTag.
void EndTag(std::size_t bodyStart);
/// As EndTag, but a body below 63 bytes moves down behind a short header.
void EndTagShortest(Long tagCode, std::size_t bodyStart);
/// The bytes from `start` on, which are taken off the stream again; they stand until the next
/// write.
ByteView TakeBack(std::size_t start);
/// Overwrites bytes already written, little-endian.
void PatchBytes(std::size_t position, Long byteCount, Long value);

/// Smallest field width that holds `value` in two's complement; one less for a positive value
/// taken as unsigned. 0 and -1 take 1.
Long BitLength(Long value, bool blUnsigned);

/// Little-endian bytes, 1 to 4. Reading past the end raises 0x80040000.
Long GetUI(Long byteCount);
Long GetBits(Long bitCount);
Long GetSBits(Long bitCount);
SwfRect GetRect();
SwfMatrix GetMatrix();
/// With `length` 0 up to the next zero byte, which is passed over.
String GetString(Long version, Long length, bool blAllowUTF8);

}  // namespace mdlSWFTag

/// A tag, or a part of one, that writes itself into the stream.
class clsSWFTag {
public:
    virtual ~clsSWFTag() = default;
    virtual void Save() = 0;
    /// Code of the tag in the file.
    virtual Long TagNum() const = 0;
    /// Counts a placement. False for a tag that does not ask whether it is placed.
    virtual bool IncPlaceCnt() { return false; }
};
using SWFTagReference = std::shared_ptr<clsSWFTag>;

}  // namespace tamber

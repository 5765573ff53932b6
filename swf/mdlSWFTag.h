#pragma once

#include "swf/BitRun.h"
#include "swf/SwfTypes.h"

namespace tamber {

/// The byte and bit stream through which every tag is written. One buffer and one cursor a thread:
/// two threads may each build a movie.
namespace mdlSWFTag {

/// SWF version of the movie in work; version-gated writers read it.
Long swfVersion();
void swfVersion(Long version);

/// Empties the buffer for a new movie.
void InitBuffer();
/// Frees the buffer.
void ReleaseBuffer();
/// What has been written, up to the end of the present byte. It stands until the next write.
ByteView Written();

/// Index of the byte being written.
std::size_t swfBytePos();
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

}  // namespace mdlSWFTag

}  // namespace tamber

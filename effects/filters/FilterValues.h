#pragma once

#include "document/cells/clsCSV.h"
#include "platform/types.h"

namespace tamber {

/// A filter's number: -32768 to 32767.99, held to four decimals.
Single FilterNumber(Single value);
/// A filter's strength: 0 to 255.99, held to four decimals.
Single FilterStrength(Single value);

/// Colour as one Long, red in the low byte.
constexpr Long FilterColor(Byte red, Byte green, Byte blue) {
    return red | green << 8 | blue << 16;
}
void SetFilterColor(Long color, Byte& red, Byte& green, Byte& blue);
/// "#RRGGBB".
String FilterColorText(Long color);

/// Weighted sums, worked out in double precision; whole numbers round half to even and stay within
/// their range.
Single Mix(Single a, Single b, double weightA, double weightB);
Long MixLong(Long a, Long b, double weightA, double weightB);
Byte MixByte(Byte a, Byte b, double weightA, double weightB);
Byte MixPercent(Byte a, Byte b, double weightA, double weightB);

/// Reads a percentage; above 100 gives 100.
Byte TakePercent(clsCSV& csv);

}  // namespace tamber

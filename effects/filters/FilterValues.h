#pragma once

#include "document/cells/FieldForms.h"
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

/// An opacity.
inline constexpr Within Percent{0, 100};

/// Weighted sums, worked out in double precision; whole numbers round half to even.
Single Mix(Single a, Single b, double weightA, double weightB);
Long MixLong(Long a, Long b, double weightA, double weightB);

}  // namespace tamber

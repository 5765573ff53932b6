#pragma once

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

}  // namespace tamber

#pragma once

#include "platform/types.h"

namespace tamber {

/// How a placement is mixed with what lies below, by the numbers of a movie file.
enum class BlendMode : Byte {
    None = 0,
    Normal = 1,
    Layer = 2,
    Multiply = 3,
    Screen = 4,
    Lighten = 5,
    Darken = 6,
    Difference = 7,
    Add = 8,
    Subtract = 9,
    Invert = 10,
    /// The opacity of what lies below in the same layer becomes that of the placement.
    Alpha = 11,
    Erase = 12,
    Overlay = 13,
    HardLight = 14,
};

}  // namespace tamber

#pragma once

#include "platform/types.h"

namespace tamber {

/// First version in which the events of clips are flags of 32 bits; before, of 16.
inline constexpr Long WideEventVersion = 6;
/// The clip event of a key press, which has a key.
inline constexpr Long ClipKeyPress = 0x20000;

/// Compiled actions of a clip or a button, and what sets them off.
struct SwfEventActions {
    Long Flags = 0;  ///< clip event flags, or conditions of a button
    Byte KeyCode = 0;
    Bytes Actions;  ///< without the closing zero
};

}  // namespace tamber

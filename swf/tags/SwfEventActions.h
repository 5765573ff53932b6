#pragma once

#include "platform/types.h"

namespace tamber {

/// Compiled actions of a clip or a button, and what sets them off.
struct SwfEventActions {
    Long Flags = 0;  ///< clip event flags, or conditions of a button
    Byte KeyCode = 0;
    Bytes Actions;  ///< without the closing zero
};

}  // namespace tamber

#pragma once

#include "platform/types.h"

namespace tamber {

/// One `on(...)` or `onClipEvent(...)` block of a script.
struct EventBlock {
    Long Position = 0;  ///< where the cursor goes, from 1
    Long Flags = 0;
    Long KeyCode = 0;
    String Text;  ///< the body, or why there is none
};

/// What the script of a block list belongs to.
enum class EventScript { Button = 1, Clip = 2 };

/// Reads the next block from `pos` on, which then stands on the block's "}", or is 0 when no block
/// is left. False when the text is no block: `block.Text` tells why and `block.Position` where.
/// Start with `pos` 0 and add 1 before each call.
bool ParseEventBlock(StringView script, Long& pos, EventBlock& block, EventScript kind,
                     Long swfVersion);

/// Code of a key press, from the text at `pos` on, which moves behind it: a name in angle brackets
/// or one character, between double quotes. 0 for anything else.
Long GetKeyCode(StringView script, Long& pos);

}  // namespace tamber

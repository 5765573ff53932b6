#pragma once

#include "document/symbols/clsLayer.h"

namespace tamber {

/// Moves the start of a key frame, which stays between its neighbours. `lastFrame` is the
/// timeline's. False, with nothing changed, when the frame is theirs.
bool MoveStart(clsLayer& layer, Long index, Long frame, Long lastFrame);

/// Sets the length of a key frame. False, with nothing changed, when it would reach the next one,
/// or when the frames before the next one, or to the timeline's end, are its own anyway.
bool SetLength(clsLayer& layer, Long index, Long count);

/// Stretches a key frame to the next one, or without one to `end` where that is not before it.
void Stretch(clsLayer& layer, Long index, Long end);

}  // namespace tamber

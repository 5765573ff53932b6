#pragma once

#include <functional>

#include "canvas/picture/PaintState.h"
#include "canvas/picture/Timeline.h"

namespace tamber {

/// The state in which a placement is drawn on a timeline that is drawn in `parent`. Throws
/// `PictureGivenUp` behind the deadline.
PaintState StateOf(const Placement& placement, const Timeline& timeline, const PaintState& parent);

/// What a placement touches with its filters, pixels; `state` is its own.
PaintBox BoundsOf(const Placement& placement, const PaintState& state);

/// The placements that a timeline shows in a state.
const DisplayList& ShownOf(const Timeline& timeline, const PaintState& state);

/// One colour transform behind another: the colours first go through `inner`.
SwfColorTransform Concat(const SwfColorTransform& outer, const SwfColorTransform& inner);

}  // namespace tamber

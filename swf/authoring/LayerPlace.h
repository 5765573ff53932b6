#pragma once

#include <vector>

#include "swf/authoring/PlaceObjectFactory.h"
#include "swf/tags/SwfEventActions.h"

namespace tamber {

/// Where a layer's characters stand in a timeline.
struct LayerPlace {
    Long Depth = 0;
    Long ClippingDepth = 0;  ///< depths that it masks
    TimelineOrigin Origin;
    /// Actions of a sprite's events.
    std::vector<SwfEventActions> Actions;
};

}  // namespace tamber

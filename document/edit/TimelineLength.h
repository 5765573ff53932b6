#pragma once

#include "document/symbols/clsLayer.h"
#include "platform/Collection.h"

namespace tamber {

/// Last frame of a timeline, at least 1. A fixed key frame that ends its layer stretches to it and
/// does not decide it.
Long LastFrame(const Collection<clsLayer>& layers);

/// Stretches the fixed key frames that end their layers to the timeline's last frame.
void FitFixedKeyFrames(Collection<clsLayer>& layers);

}  // namespace tamber

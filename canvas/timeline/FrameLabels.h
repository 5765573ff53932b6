#pragma once

#include <vector>

#include "document/symbols/clsLayer.h"
#include "platform/Collection.h"

namespace tamber {

struct FrameLabel {
    String Name;
    Long Frame = 1;
};

/// The labels of a timeline, by frames; the upper row first where they share one.
std::vector<FrameLabel> FrameLabels(const Collection<clsLayer>& layers);

}  // namespace tamber

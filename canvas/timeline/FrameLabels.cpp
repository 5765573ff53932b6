#include "canvas/timeline/FrameLabels.h"

#include <algorithm>

#include "document/elements/clsObjFrameLabel.h"

namespace tamber {

std::vector<FrameLabel> FrameLabels(const Collection<clsLayer>& layers) {
    std::vector<FrameLabel> labels;
    for (const auto& layer : layers)
        for (const auto& object : layer->colObject)
            if (const auto* label = object->ObjectAs<clsObjFrameLabel>();
                label != nullptr && !label->LabelName.empty())
                labels.push_back({label->LabelName, object->StartFrame()});
    std::stable_sort(labels.begin(), labels.end(),
                     [](const FrameLabel& a, const FrameLabel& b) { return a.Frame < b.Frame; });
    return labels;
}

}  // namespace tamber

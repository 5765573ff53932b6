#include "document/edit/TimelineLength.h"

#include <algorithm>

namespace tamber {

namespace {

/// 0 for a layer that shows nothing.
Long LastFrame(const clsLayer& layer) {
    for (Long i = layer.ObjectCount(); i >= 1; --i) {
        const clsLayerObject& object = *layer.Object(i);
        if (!object.blVisible) continue;
        const bool stretches = i == layer.ObjectCount() && object.blFixed;
        return stretches ? object.StartFrame() : object.endFrame();
    }
    return 0;
}

}  // namespace

Long LastFrame(const Collection<clsLayer>& layers) {
    Long last = 1;
    for (const auto& layer : layers) last = std::max(last, LastFrame(*layer));
    return last;
}

void FitFixedKeyFrames(Collection<clsLayer>& layers) {
    const Long last = LastFrame(layers);
    for (const auto& layer : layers)
        if (const auto end = layer->EndObject(); end && end->blFixed)
            layer->ChangeStartFrame(layer->ObjectCount(), last);
}

}  // namespace tamber

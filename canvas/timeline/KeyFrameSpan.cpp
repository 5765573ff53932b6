#include "canvas/timeline/KeyFrameSpan.h"

#include <algorithm>

namespace tamber {

bool MoveStart(clsLayer& layer, Long index, Long frame, Long lastFrame) {
    if (frame < 1) return false;
    if (index > 1 && frame <= layer.Object(index - 1)->StartFrame()) return false;
    clsLayerObject& object = *layer.Object(index);
    const bool isLast = index == layer.ObjectCount();
    if (!isLast && frame >= layer.Object(index + 1)->StartFrame()) return false;
    object.StartFrame(frame);
    if (!isLast && object.endFrame() >= layer.Object(index + 1)->StartFrame())
        object.endFrame(layer.Object(index + 1)->StartFrame() - 1);
    layer.ChangeStartFrame(index, lastFrame);
    return true;
}

bool SetLength(clsLayer& layer, Long index, Long count) {
    clsLayerObject& object = *layer.Object(index);
    const bool isLast = index == layer.ObjectCount();
    if (count < 1 || object.blFixed || (object.blTween && !isLast)) return false;
    if (!isLast && count > layer.Object(index + 1)->StartFrame() - object.StartFrame())
        return false;
    object.DispCount(count);
    return true;
}

void Stretch(clsLayer& layer, Long index, Long end) {
    clsLayerObject& object = *layer.Object(index);
    if (index < layer.ObjectCount()) end = layer.Object(index + 1)->StartFrame() - 1;
    object.endFrame(std::max(end, object.StartFrame()));
}

}  // namespace tamber

#include "document/edit/LayerSnapshot.h"

#include <algorithm>

#include "document/Project.h"

namespace tamber {

namespace {

/// Key frames of the layer's present state, those that did not change being `previous`'s.
Collection<clsLayerObject> TakeKeyFrames(const clsLayer& layer, const clsLayer& previous) {
    Collection<clsLayerObject> taken;
    auto old = previous.colObject.begin();
    for (const auto& object : layer.colObject) {
        while (old != previous.colObject.end() && (*old)->StartFrame() < object->StartFrame())
            ++old;
        const bool same = old != previous.colObject.end() && object->Compare(**old);
        taken.Add(same ? *old : object->Copy());
    }
    return taken;
}

bool SameKeyFrames(const clsLayer& layer, const clsLayer& previous) {
    return std::equal(layer.colObject.begin(), layer.colObject.end(), previous.colObject.begin(),
                      previous.colObject.end(),
                      [](const auto& object, const auto& old) { return object->Compare(*old); });
}

/// Null when the layer is as it was.
std::shared_ptr<const clsLayer> TakeLayer(const clsLayer& layer, const clsLayer* previous) {
    if (previous == nullptr || previous->SymbolData() != layer.SymbolData()) return layer.Copy();
    if (layer.CompareHead(*previous) && SameKeyFrames(layer, *previous)) return nullptr;
    auto taken = layer.CopyHead();
    taken->colObject = TakeKeyFrames(layer, *previous);
    return taken;
}

}  // namespace

LayerSnapshot TakeLayerSnapshot(const Collection<clsLayer>& layers, const LayerSnapshot& previous) {
    LayerSnapshot snapshot;
    snapshot.reserve(static_cast<std::size_t>(layers.Count()));
    // Layers move rarely: each is looked for where it was, then as far off as rows came or went.
    const auto shift = static_cast<std::ptrdiff_t>(previous.size()) - layers.Count();
    for (const auto& layer : layers) {
        const auto row = static_cast<std::ptrdiff_t>(snapshot.size());
        std::shared_ptr<const clsLayer> taken;
        for (const std::ptrdiff_t place : {row, row + shift}) {
            if (place < 0 || place >= static_cast<std::ptrdiff_t>(previous.size())) continue;
            const auto& old = previous[static_cast<std::size_t>(place)];
            taken = TakeLayer(*layer, old.get());
            if (!taken) taken = old;
            if (taken == old) break;
        }
        snapshot.push_back(taken ? std::move(taken) : layer->Copy());
    }
    return snapshot;
}

std::shared_ptr<Collection<clsLayer>> RestoreLayers(const LayerSnapshot& snapshot) {
    auto layers = std::make_shared<Collection<clsLayer>>();
    for (const auto& layer : snapshot) layers->Add(layer->Copy());
    NestLayers(*layers);
    return layers;
}

}  // namespace tamber

#include "document/LayerSnapshot.h"

#include <algorithm>

#include "document/Project.h"
#include "document/clsLayerObjElement.h"
#include "document/clsObjFrameAction.h"

namespace tamber {

namespace {

bool SamePath(const clsLayerObjElement* a, const clsLayerObjElement* b) {
    if (a == nullptr || b == nullptr) return a == b;
    return std::equal(a->colTweenPoint.begin(), a->colTweenPoint.end(), b->colTweenPoint.begin(),
                      b->colTweenPoint.end(),
                      [](const auto& one, const auto& other) { return *one == *other; });
}

/// The comparison of scripts leaves this out.
bool SameTarget(const clsLayerObject& a, const clsLayerObject& b) {
    const auto* one = a.ObjectAs<clsObjFrameAction>();
    const auto* other = b.ObjectAs<clsObjFrameAction>();
    return one == nullptr || other == nullptr ||
           one->inScript.TargetPath == other->inScript.TargetPath;
}

bool SameState(const clsLayerObject& a, const clsLayerObject& b) {
    if (a.StartFrame() != b.StartFrame() || a.DispCount() != b.DispCount() ||
        a.blTween != b.blTween || a.blFixed != b.blFixed || a.blVisible != b.blVisible ||
        a.SymbolType() != b.SymbolType())
        return false;
    if (!a.Object || !b.Object) return a.Object == b.Object;
    return a.Object->Compare(*b.Object) && SamePath(a.Placement(), b.Placement()) &&
           SameTarget(a, b);
}

/// All but the key frames.
bool SameHead(const clsLayer& a, const clsLayer& b) {
    return a.SymbolData() == b.SymbolData() && a.LayerName == b.LayerName &&
           a.InstanceName == b.InstanceName && a.ClippingDepth == b.ClippingDepth &&
           a.inScript.Compare(b.inScript) && a.inScript.TargetPath == b.inScript.TargetPath &&
           a.SelectIndex == b.SelectIndex && a.eOnEvent == b.eOnEvent &&
           a.FirstFrame == b.FirstFrame && a.FrameWidth == b.FrameWidth &&
           a.ExpText() == b.ExpText() && a.Visible(true) == b.Visible(true);
}

/// Key frames of the layer's present state, those that did not change being `previous`'s.
Collection<clsLayerObject> TakeKeyFrames(const clsLayer& layer, const clsLayer& previous) {
    Collection<clsLayerObject> taken;
    auto old = previous.colObject.begin();
    for (const auto& object : layer.colObject) {
        while (old != previous.colObject.end() && (*old)->StartFrame() < object->StartFrame())
            ++old;
        const bool same = old != previous.colObject.end() && SameState(*object, **old);
        taken.Add(same ? *old : object->Copy());
    }
    return taken;
}

bool SameKeyFrames(const clsLayer& layer, const clsLayer& previous) {
    return std::equal(layer.colObject.begin(), layer.colObject.end(), previous.colObject.begin(),
                      previous.colObject.end(),
                      [](const auto& object, const auto& old) { return SameState(*object, *old); });
}

/// Null when the layer is as it was.
std::shared_ptr<const clsLayer> TakeLayer(const clsLayer& layer, const clsLayer* previous) {
    if (previous == nullptr || previous->SymbolData() != layer.SymbolData()) return layer.Copy();
    if (SameHead(layer, *previous) && SameKeyFrames(layer, *previous)) return nullptr;
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

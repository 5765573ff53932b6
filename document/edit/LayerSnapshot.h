#pragma once

#include <memory>
#include <vector>

#include "document/symbols/clsLayer.h"

namespace tamber {

/// A timeline as it was: layers that nobody edits any more. Snapshots share the layers, and layers
/// the key frames, that did not change between them.
using LayerSnapshot = std::vector<std::shared_ptr<const clsLayer>>;

/// The state of a timeline. What agrees with `previous`, which may be empty, is shared with it.
LayerSnapshot TakeLayerSnapshot(const Collection<clsLayer>& layers, const LayerSnapshot& previous);

/// A timeline that can be edited, with the folders nested, from a snapshot, which stays as it is.
std::shared_ptr<Collection<clsLayer>> RestoreLayers(const LayerSnapshot& snapshot);

}  // namespace tamber

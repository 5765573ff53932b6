#pragma once

#include <functional>
#include <vector>

#include "document/symbols/clsLayer.h"
#include "swf/authoring/KomaTable.h"
#include "swf/authoring/PlaceObjectFactory.h"
#include "swf/authoring/TweenExpansion.h"
#include "swf/tags/SwfEventActions.h"

namespace tamber {

/// A character of a key frame's own.
struct DeformedCharacter {
    Long Identifier = 0;
    Long PlaceCount = 1;
};

/// What stands on a layer, and where.
struct LayerCharacter {
    Long Identifier = 0;
    Long Depth = 0;
    Long PlaceCount = 1;     ///< depths that it takes
    Long ClippingDepth = 0;  ///< depths that it masks
    TimelineOrigin Origin;
    /// Actions of a sprite's events, or null.
    const std::vector<SwfEventActions>* Actions = nullptr;
    KomaTable* Koma = nullptr;
    /// Defines the character of a vector key frame that is deformed, or, with the key frame that a
    /// tween ends with, one that morphs. Null for other kinds.
    std::function<DeformedCharacter(const clsLayerObject& start, const clsLayerObject* end)> Deform;
};

/// Frames of the key frame at `index`: its span, cut where the next one begins. Spans overlap in
/// damaged files, and where frames were taken out over the end of one.
Long SpanOf(const clsLayer& layer, Long index);

/// The key frame at `index` is a tween's start: shown, and with one behind it.
bool OpensTween(const clsLayer& layer, Long index);

/// The key frame at `index` needs a character of its own: its outline is deformed, or its tween
/// ends so.
bool IsDeformed(const clsLayer& layer, Long index, const LayerCharacter& character);

/// Defines that character.
DeformedCharacter DeformedAt(const clsLayer& layer, Long index, const LayerCharacter& character);

/// The tween of a layer's character that begins at the key frame at `index`.
Tween TweenOf(const clsLayer& layer, Long index, const LayerCharacter& character);

/// The way from the place of one key frame to that of the next.
TweenPath PathOf(const clsLayerObject& start, const clsLayerObject& end, TimelineOrigin origin);

}  // namespace tamber

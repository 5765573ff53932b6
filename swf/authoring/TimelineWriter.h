#pragma once

#include <vector>

#include "document/records/clsPropertySprite.h"
#include "document/symbols/clsLayer.h"
#include "platform/Collection.h"
#include "swf/authoring/PlaceObjectFactory.h"
#include "swf/authoring/clsSWFAdmin.h"

namespace tamber {

/// A timeline being walked: its tags, and where its positions are counted from.
struct Timeline {
    clsSWFAdmin& Admin;
    const Collection<clsLayer>& Layers;
    TimelineOrigin Origin;
    /// Frame of the movie that a sprite's definitions go into; 0 for the movie's own timeline.
    Long SpriteFrame = 0;

    bool IsMain() const { return SpriteFrame == 0; }
};

/// Fills timelines with what their rows show: a whole movie in one way, a single frame of it in
/// another. The definer asks here how much of a symbol is wanted.
class TimelineWriter {
public:
    virtual ~TimelineWriter() = default;

    virtual void WriteTimeline(const Timeline& timeline) = 0;
    /// Frame for what need not be defined in the first one.
    virtual Long LateFrame() const = 0;
    /// A new definition of a sprite, whose parts are defined; init actions go into `frame` too. The
    /// result is its identifier.
    virtual Long GetNewSprite(clsSWFAdmin& admin, const clsPropertySprite& sprite, Long frame) = 0;
    /// Something of a sprite's row is wanted.
    virtual bool Shows(const clsLayer& layer) const = 0;
    /// The pictures wanted of a koma's layer in the main timeline or a sprite's.
    virtual std::vector<const clsSymbolData*> PicturesOf(const clsLayer& layer,
                                                         bool isMain) const = 0;
    /// Classes, and actions of frames and layers, are wanted.
    virtual bool HasScripts() const = 0;
};

}  // namespace tamber

#pragma once

#include <memory>

#include "swf/authoring/LayerCharacters.h"
#include "swf/authoring/LayerCourse.h"
#include "swf/authoring/LayerPlace.h"
#include "swf/authoring/clsSWFAdmin.h"

namespace tamber {

/// What one layer shows on one frame: the key frame, and how far its tween is.
class FramePlacement {
public:
    FramePlacement(const clsLayer& layer, Long frame)
        : layer_(layer), course_(layer), stand_(course_.On(frame)), frame_(frame) {}

    /// Nothing of the layer is seen on the frame.
    bool Empty() const { return stand_.Index == 0; }
    /// Which picture of a koma is seen, from 0 and without an end: the list begins anew behind its
    /// last one.
    std::int64_t KomaPicture() const;
    /// Puts the character, as it is on the frame, on frame 1 of a timeline.
    std::shared_ptr<clsSWFTagPlaceObject> Place(clsSWFAdmin& admin, const LayerPlace& place,
                                                LayerCharacters& characters) const;

private:
    const clsLayerObject& Object() const { return *layer_.Object(stand_.Index); }
    ShownCharacter Character(LayerCharacters& characters) const;

    const clsLayer& layer_;
    LayerCourse course_;
    KeyFrameStand stand_;
    Long frame_;
};

}  // namespace tamber

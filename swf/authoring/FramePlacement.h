#pragma once

#include <cstdint>
#include <memory>

#include "swf/authoring/LayerCharacter.h"
#include "swf/authoring/clsSWFAdmin.h"

namespace tamber {

/// What one layer shows on one frame: the key frame, and how far its tween is.
class FramePlacement {
public:
    FramePlacement(const clsLayer& layer, Long frame);

    /// Nothing of the layer is seen on the frame.
    bool Empty() const { return index_ == 0; }
    /// Which picture of a koma is seen, from 0 and without an end: the list begins anew behind its
    /// last one. `displayCount` are the frames a picture, at least 1.
    std::int64_t KomaPicture(Long displayCount) const;
    /// Puts the character, as it is on the frame, on frame 1 of a timeline.
    std::shared_ptr<clsSWFTagPlaceObject> Place(clsSWFAdmin& admin,
                                                const LayerCharacter& character) const;

private:
    const clsLayerObject& Object() const { return *layer_.Object(index_); }
    bool ContinuesFrom(Long index) const;
    void ChooseCharacter(clsSWFTagPlaceObject& tag, const LayerCharacter& character) const;
    bool EndsSpecialTween(Long index, const LayerCharacter& character) const;
    bool MorphEnded(const LayerCharacter& character) const;

    const clsLayer& layer_;
    Long frame_;
    Long index_ = 0;
};

}  // namespace tamber

#pragma once

#include <memory>

#include "swf/authoring/LayerCharacters.h"
#include "swf/authoring/LayerCourse.h"
#include "swf/authoring/LayerPlace.h"
#include "swf/authoring/clsSWFAdmin.h"

namespace tamber {

/// Puts the key frames of one layer into a timeline: placements, tweens, moves and removals.
class LayerPlacement {
public:
    LayerPlacement(clsSWFAdmin& admin, const clsLayer& layer, const LayerPlace& place,
                   LayerCharacters& characters)
        : admin_(admin),
          layer_(layer),
          place_(place),
          characters_(characters),
          course_(layer),
          placeCount_(characters.First().PlaceCount) {}

    void Run();

private:
    const clsLayerObject& Object() const { return *layer_.Object(stand_.Index); }
    void PlaceKeyFrame(Long index);
    std::shared_ptr<clsSWFTagPlaceObject> MakeTag(const KeyFrameStand& stand);
    void ChooseCharacter();
    void ReplaceCharacter(ShownCharacter character);
    void ExpandTween(const KeyFrameStand& from, const std::shared_ptr<clsSWFTagPlaceObject>& start);
    void PlaceStatic();
    void EndSpan();
    void Remove(Long frame);
    void TakeBlend(clsSWFTagPlaceObject& tag, const clsLayerObjElement& element) const;

    clsSWFAdmin& admin_;
    const clsLayer& layer_;
    const LayerPlace& place_;
    LayerCharacters& characters_;
    LayerCourse course_;
    KeyFrameStand stand_;
    std::shared_ptr<clsSWFTagPlaceObject> tag_;
    Long placeCount_;  ///< depths of the present character
};

}  // namespace tamber

#pragma once

#include <memory>

#include "swf/authoring/LayerCharacter.h"
#include "swf/authoring/clsSWFAdmin.h"

namespace tamber {

/// Puts the key frames of one layer into a timeline: placements, tweens, moves and removals.
class LayerPlacement {
public:
    LayerPlacement(clsSWFAdmin& admin, const clsLayer& layer, LayerCharacter character)
        : admin_(admin),
          layer_(layer),
          character_(std::move(character)),
          placeCount_(character_.PlaceCount) {}

    void Run();

private:
    void PlaceKeyFrame(Long index);
    void ChooseCharacter(Long index, bool endsTween);
    void ReplaceCharacter(Long frame, DeformedCharacter character);
    void EndCharacter();
    std::shared_ptr<clsSWFTagPlaceObject> MakeTag(const clsLayerObject& object);
    void ExpandTween(const std::shared_ptr<clsSWFTagPlaceObject>& start, Long index);
    void PlaceStatic(Long index);
    void EndSpan(Long index);
    void Remove(Long frame);

    clsSWFAdmin& admin_;
    const clsLayer& layer_;
    LayerCharacter character_;
    std::shared_ptr<clsSWFTagPlaceObject> tag_;
    /// The key frame before, when its placement is part of the present chain.
    const clsLayerObject* previous_ = nullptr;
    bool placed_ = false;   ///< a tag of the present chain exists
    bool onStage_ = false;  ///< a character stands at the depth
    bool inTween_ = false;  ///< the key frame before opened a tween
    bool special_ = false;  ///< the character is a key frame's own
    Long placeCount_;       ///< depths of the present character
};

}  // namespace tamber

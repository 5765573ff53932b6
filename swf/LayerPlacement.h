#pragma once

#include <functional>
#include <memory>

#include "document/clsLayer.h"
#include "swf/KomaTable.h"
#include "swf/PlaceObjectFactory.h"
#include "swf/clsSWFAdmin.h"

namespace tamber {

/// Puts the key frames of one layer into a timeline: placements, tweens, moves and removals.
class LayerPlacement {
public:
    /// A character of a key frame's own.
    struct DeformedCharacter {
        Long Identifier = 0;
        Long PlaceCount = 1;
    };

    /// What stands on the layer, and where.
    struct Character {
        Long Identifier = 0;
        Long Depth = 0;
        Long PlaceCount = 1;     ///< depths that it takes
        Long ClippingDepth = 0;  ///< depths that it masks
        TimelineOrigin Origin;
        /// Actions of a sprite's events, or null.
        const std::vector<SwfEventActions>* Actions = nullptr;
        KomaTable* Koma = nullptr;
        /// Defines the character of a vector key frame that is deformed, or, with the key frame
        /// that a tween ends with, one that morphs. Null for other kinds.
        std::function<DeformedCharacter(const clsLayerObject& start, const clsLayerObject* end)>
            Deform;
    };

    LayerPlacement(clsSWFAdmin& admin, const clsLayer& layer, Character character)
        : admin_(admin),
          layer_(layer),
          character_(std::move(character)),
          placeCount_(character_.PlaceCount) {}

    void Run();

private:
    void PlaceKeyFrame(Long index);
    bool OpensTween(Long index) const;
    bool IsDeformed(Long index) const;
    void ChooseCharacter(Long index, bool endsTween);
    void ReplaceCharacter(Long frame, DeformedCharacter character);
    void EndCharacter();
    std::shared_ptr<clsSWFTagPlaceObject> MakeTag(const clsLayerObject& object);
    void ExpandTween(const std::shared_ptr<clsSWFTagPlaceObject>& start, const clsLayerObject& end);
    void PlaceStatic(const clsLayerObject& object);
    void EndSpan(Long index);
    void Remove(Long frame);

    clsSWFAdmin& admin_;
    const clsLayer& layer_;
    Character character_;
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

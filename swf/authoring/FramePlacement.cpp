#include "swf/authoring/FramePlacement.h"

#include <algorithm>

#include "swf/authoring/TweenExpansion.h"

namespace tamber {

std::int64_t FramePlacement::KomaPicture() const {
    const Long last = std::max(course_.SpanOf(stand_.Index), 1) - 1;
    return course_.PictureAt(stand_, std::min(frame_ - Object().StartFrame(), last));
}

ShownCharacter FramePlacement::Character(LayerCharacters& characters) const {
    const Long owner = stand_.Owner;
    if (owner == 0) return characters.First();
    return characters.Own(*layer_.Object(owner),
                          course_.OpensTween(owner) ? layer_.Object(owner + 1).get() : nullptr);
}

std::shared_ptr<clsSWFTagPlaceObject> FramePlacement::Place(clsSWFAdmin& admin,
                                                            const LayerPlace& place,
                                                            LayerCharacters& characters) const {
    const clsLayerObjElement& element = *Object().Placement();
    const ShownCharacter character = Character(characters);
    const auto make = [&](Long id, const clsLayerObjElement& shown,
                          const clsLayerObjElement* previous) {
        return NewPlaceObject(admin.Ver, id, place.Depth, shown, place.Origin, previous);
    };
    auto tag = make(character.Identifier, element, nullptr);
    tag->PlaceCnt = character.PlaceCount;
    tag->ClippingDepth = place.ClippingDepth;
    tag->ObjIndex = stand_.Index;
    if (!stand_.blTween) {
        if (stand_.blEnded && Morphs(layer_, stand_)) tag->Ratio(FullRatio);
        admin.AddPlaceObj(1, tag);
        return tag;
    }
    const Tween tween(layer_, course_, stand_, tag,
                      make(0, *layer_.Object(stand_.Index + 1)->Placement(), &element));
    const Long offset = std::min(frame_ - Object().StartFrame(), tween.Span - 1);
    AddTweenFrame(admin, tween, TweenPathOf(layer_, stand_.Index, place.Origin), offset);
    return tag;
}

}  // namespace tamber

#include "swf/authoring/LayerPlacement.h"

#include "swf/authoring/TweenExpansion.h"
#include "swf/tags/clsSWFTagRemoveObject.h"

namespace tamber {

void LayerPlacement::Run() {
    for (Long index = 1; index <= layer_.ObjectCount(); ++index)
        if (layer_.Object(index)->Placement() != nullptr) PlaceKeyFrame(index);
}

/// What a character that is placed anew has to say of its blend mode.
void LayerPlacement::TakeBlend(clsSWFTagPlaceObject& tag, const clsLayerObjElement& element) const {
    if (admin_.Ver >= FilterVersion && element.eBlend != 0) tag.eBlend(element.eBlend);
}

/// Tag of the key frame behind the present one.
std::shared_ptr<clsSWFTagPlaceObject> LayerPlacement::MakeTag(const KeyFrameStand& stand) {
    const clsLayerObject& object = *layer_.Object(stand.Index);
    const clsLayerObjElement& element = *object.Placement();
    const auto make = [&](Long id, const clsLayerObjElement* previous) {
        return NewPlaceObject(admin_.Ver, id, place_.Depth, element, place_.Origin, previous);
    };
    if (!stand.blAnew) {
        auto tag = make(0, Object().Placement());
        // A picture that comes within the span has to mask and blend again.
        if (course_.FramesAPicture() != 0) {
            tag->ClippingDepth = tag_->ClippingDepth;
            TakeBlend(*tag, element);
        }
        return tag;
    }
    auto tag = make(characters_.First().Identifier, nullptr);
    placeCount_ = characters_.First().PlaceCount;
    tag->ClippingDepth = place_.ClippingDepth;
    if (layer_.blInstance()) tag->Name = layer_.InstanceName;
    if (object.blVisible) tag->MCAction = place_.Actions;
    return tag;
}

void LayerPlacement::PlaceKeyFrame(Long index) {
    const KeyFrameStand before = stand_;
    const KeyFrameStand stand = course_.Next(before, index);
    auto tag = MakeTag(stand);
    stand_ = stand;
    tag->PlaceCnt = placeCount_;
    std::swap(tag_, tag);
    if (before.blTween) ExpandTween(before, tag);
    const Long start = Object().StartFrame();
    if (!stand_.blShown) {
        if (!stand_.blAnew && start <= admin_.FrameCount()) Remove(start);
        return;
    }
    ChooseCharacter();
    if (stand_.blTween) return;
    PlaceStatic();
    EndSpan();
}

void LayerPlacement::ChooseCharacter() {
    if (stand_.blSame) return;
    if (stand_.Owner != 0)
        ReplaceCharacter(characters_.Own(
            Object(), stand_.blTween ? layer_.Object(stand_.Index + 1).get() : nullptr));
    else if (!stand_.blAnew)
        ReplaceCharacter(characters_.First());
}

void LayerPlacement::ReplaceCharacter(ShownCharacter character) {
    if (!stand_.blAnew) Remove(Object().StartFrame());
    placeCount_ = character.PlaceCount;
    tag_->PlaceID = character.Identifier;
    tag_->PlaceCnt = character.PlaceCount;
    tag_->ClippingDepth = place_.ClippingDepth;
    if (layer_.blInstance()) tag_->Name = layer_.InstanceName;
    TakeBlend(*tag_, *Object().Placement());
}

/// The tween that begins at the key frame before with tag `start` and ends with the present one.
void LayerPlacement::ExpandTween(const KeyFrameStand& from,
                                 const std::shared_ptr<clsSWFTagPlaceObject>& start) {
    const Tween tween(layer_, course_, from, start, tag_);
    AddTween(admin_, tween, TweenPathOf(layer_, from.Index, place_.Origin),
             SpanPictures(course_, from, characters_));
}

void LayerPlacement::PlaceStatic() {
    const SpanPictures pictures(course_, stand_, characters_);
    if (!pictures.Turn()) {
        admin_.AddPlaceObj(Object().StartFrame(), tag_);
        return;
    }
    const Long span = course_.SpanOf(stand_.Index);
    for (Long i = 0; i < span; ++i)
        if (const std::optional<Long> id = pictures.At(i))
            PlacePicture(admin_, Object().StartFrame() + i, *tag_, *id);
}

void LayerPlacement::EndSpan() {
    const Long next = Object().StartFrame() + course_.SpanOf(stand_.Index);
    if (!stand_.blStays && next <= admin_.FrameCount()) Remove(next);
}

void LayerPlacement::Remove(Long frame) {
    auto remove = std::make_shared<clsSWFTagRemoveObject>();
    remove->depth = place_.Depth;
    remove->RemoveCnt = placeCount_;
    admin_.AddTag(frame, std::move(remove), false);
}

}  // namespace tamber

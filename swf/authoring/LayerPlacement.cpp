#include "swf/authoring/LayerPlacement.h"

#include "swf/mdlSWFTag.h"
#include "swf/tags/clsSWFTagRemoveObject.h"

namespace tamber {

namespace {
/// What a character that is placed anew has to say of its blend mode.
void TakeBlend(clsSWFTagPlaceObject& tag, const clsLayerObjElement& element) {
    if (mdlSWFTag::swfVersion() >= FilterVersion && element.eBlend != 0) tag.eBlend(element.eBlend);
}

}  // namespace

void LayerPlacement::Run() {
    for (Long index = 1; index <= layer_.ObjectCount(); ++index)
        if (layer_.Object(index)->Placement() != nullptr) PlaceKeyFrame(index);
}

std::shared_ptr<clsSWFTagPlaceObject> LayerPlacement::MakeTag(const clsLayerObject& object) {
    const clsLayerObjElement& element = *object.Placement();
    const Long depth = character_.Depth;
    if (placed_) {
        auto tag = NewPlaceObject(0, depth, element, character_.Origin, previous_->Placement());
        // A koma is placed anew within the span and has to mask and blend again.
        if (character_.Koma != nullptr) {
            tag->ClippingDepth = tag_->ClippingDepth;
            TakeBlend(*tag, element);
        }
        return tag;
    }
    auto tag = NewPlaceObject(character_.Identifier, depth, element, character_.Origin, nullptr);
    tag->ClippingDepth = character_.ClippingDepth;
    if (layer_.blInstance()) tag->Name = layer_.InstanceName;
    if (object.blVisible && character_.Actions != nullptr) tag->MCAction = *character_.Actions;
    if (character_.Koma != nullptr) character_.Koma->Rewind();
    return tag;
}

void LayerPlacement::PlaceKeyFrame(Long index) {
    const clsLayerObject& object = *layer_.Object(index);
    auto tag = MakeTag(object);
    tag->PlaceCnt = placeCount_;
    placed_ = true;
    std::swap(tag_, tag);
    const bool endsTween = inTween_;
    if (inTween_) ExpandTween(tag, index - 1);
    inTween_ = false;
    previous_ = &object;
    if (!object.blVisible) {
        if (onStage_ && object.StartFrame() <= admin_.FrameCount()) Remove(object.StartFrame());
        EndCharacter();
        return;
    }
    ChooseCharacter(index, endsTween);
    if (OpensTween(layer_, index)) {
        inTween_ = true;
    } else {
        PlaceStatic(index);
        EndSpan(index);
    }
}

/// The end of a morph shows its outline already; other deformed key frames get their own character,
/// and a plain one after them the layer's.
void LayerPlacement::ChooseCharacter(Long index, bool endsTween) {
    const clsLayerObject& object = *layer_.Object(index);
    if (special_ && endsTween && !OpensTween(layer_, index)) return;
    if (IsDeformed(layer_, index, character_)) {
        ReplaceCharacter(object.StartFrame(), DeformedAt(layer_, index, character_));
        special_ = true;
    } else if (special_) {
        ReplaceCharacter(object.StartFrame(), {character_.Identifier, character_.PlaceCount});
        special_ = false;
    }
}

void LayerPlacement::ReplaceCharacter(Long frame, DeformedCharacter character) {
    if (onStage_) Remove(frame);
    onStage_ = false;
    placeCount_ = character.PlaceCount;
    tag_->PlaceID = character.Identifier;
    tag_->PlaceCnt = character.PlaceCount;
    tag_->ClippingDepth = character_.ClippingDepth;
    if (layer_.blInstance()) tag_->Name = layer_.InstanceName;
    TakeBlend(*tag_, *previous_->Placement());
}

/// What stands at the depth is gone; the next key frame begins anew.
void LayerPlacement::EndCharacter() {
    placed_ = onStage_ = special_ = false;
    placeCount_ = character_.PlaceCount;
}

/// The tween that begins at the key frame at `index` with tag `start` and ends with the present
/// one.
void LayerPlacement::ExpandTween(const std::shared_ptr<clsSWFTagPlaceObject>& start, Long index) {
    Tween tween = TweenOf(layer_, index, character_);
    tween.StartTag = start;
    tween.EndTag = tag_;
    AddTween(admin_, tween,
             PathOf(*layer_.Object(index), *layer_.Object(index + 1), character_.Origin));
    onStage_ = true;
}

void LayerPlacement::PlaceStatic(Long index) {
    const Long start = layer_.Object(index)->StartFrame();
    onStage_ = true;
    if (character_.Koma == nullptr) {
        admin_.AddPlaceObj(start, tag_);
        return;
    }
    character_.Koma->BeginSpan();
    const Long span = SpanOf(layer_, index);
    for (Long i = 0; i < span; ++i) PlaceKoma(admin_, start + i, *tag_, *character_.Koma);
}

void LayerPlacement::EndSpan(Long index) {
    const Long end = layer_.Object(index)->StartFrame() + SpanOf(layer_, index) - 1;
    if (index == layer_.ObjectCount()) {
        if (end < admin_.FrameCount()) Remove(end + 1);
        EndCharacter();
        return;
    }
    const bool gap = layer_.Object(index + 1)->StartFrame() > end + 1;
    if (end != admin_.FrameCount() && (gap || special_)) {
        Remove(end + 1);
        EndCharacter();
    }
}

void LayerPlacement::Remove(Long frame) {
    auto remove = std::make_shared<clsSWFTagRemoveObject>();
    remove->depth = character_.Depth;
    remove->RemoveCnt = placeCount_;
    admin_.AddTag(frame, std::move(remove), false);
}

}  // namespace tamber

#include "swf/LayerPlacement.h"

#include "document/SymbolKinds.h"
#include "document/clsSymbolData.h"
#include "swf/TweenExpansion.h"
#include "swf/tags/clsSWFTagRemoveObject.h"

namespace tamber {

void LayerPlacement::Run() {
    for (Long index = 1; index <= layer_.ObjectCount(); ++index)
        if (layer_.Object(index)->Placement() != nullptr) PlaceKeyFrame(index);
}

std::shared_ptr<clsSWFTagPlaceObject> LayerPlacement::MakeTag(const clsLayerObjElement& element) {
    const Long depth = character_.Depth;
    if (placed_) {
        auto tag = NewPlaceObject(0, depth, element, character_.Origin, previous_->Placement());
        // A koma is placed anew within the span and has to mask again; any other mask stays one.
        if (character_.Koma != nullptr) tag->ClippingDepth = tag_->ClippingDepth;
        return tag;
    }
    auto tag = NewPlaceObject(character_.Identifier, depth, element, character_.Origin, nullptr);
    tag->ClippingDepth = character_.ClippingDepth;
    if (layer_.blInstance()) tag->Name = layer_.InstanceName;
    if (character_.Koma != nullptr) character_.Koma->Rewind();
    return tag;
}

void LayerPlacement::PlaceKeyFrame(Long index) {
    const clsLayerObject& object = *layer_.Object(index);
    auto tag = MakeTag(*object.Placement());
    tag->PlaceCnt = character_.PlaceCount;
    placed_ = true;
    std::swap(tag_, tag);
    if (inTween_) ExpandTween(tag, object);
    inTween_ = false;
    previous_ = &object;
    if (!object.blVisible) {
        if (onStage_ && object.StartFrame() <= admin_.FrameCount()) Remove(object.StartFrame());
        placed_ = onStage_ = false;
    } else if (object.blTween && index < layer_.ObjectCount()) {
        inTween_ = true;
    } else {
        PlaceStatic(object);
        EndSpan(index);
    }
}

void LayerPlacement::ExpandTween(const std::shared_ptr<clsSWFTagPlaceObject>& start,
                                 const clsLayerObject& end) {
    Tween tween;
    tween.Frame = previous_->StartFrame();
    tween.Span = previous_->DispCount();
    tween.StartTag = start;
    tween.EndTag = tag_;
    tween.Element = previous_->Placement();
    tween.blVector = layer_.SymbolData()->eTypeEx() == KindVector;
    tween.Koma = character_.Koma;
    const TweenPath path(*previous_->Placement(), *end.Placement(), character_.Origin.X,
                         character_.Origin.Y);
    AddTween(admin_, tween, path);
    onStage_ = true;
}

void LayerPlacement::PlaceStatic(const clsLayerObject& object) {
    onStage_ = true;
    if (character_.Koma == nullptr) {
        admin_.AddPlaceObj(object.StartFrame(), tag_);
        return;
    }
    character_.Koma->BeginSpan();
    for (Long i = 0; i < object.DispCount(); ++i)
        PlaceKoma(admin_, object.StartFrame() + i, *tag_, *character_.Koma);
}

void LayerPlacement::EndSpan(Long index) {
    const Long end = layer_.Object(index)->endFrame();
    if (index == layer_.ObjectCount()) {
        if (end < admin_.FrameCount()) Remove(end + 1);
        placed_ = onStage_ = false;
        return;
    }
    if (end != admin_.FrameCount() && layer_.Object(index + 1)->StartFrame() > end + 1) {
        Remove(end + 1);
        placed_ = onStage_ = false;
    }
}

void LayerPlacement::Remove(Long frame) {
    auto remove = std::make_shared<clsSWFTagRemoveObject>();
    remove->depth = character_.Depth;
    remove->RemoveCnt = character_.PlaceCount;
    admin_.AddTag(frame, std::move(remove), false);
}

}  // namespace tamber

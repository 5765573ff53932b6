#include "swf/authoring/FramePlacement.h"

#include <algorithm>

namespace tamber {

namespace {

/// The last key frame that has begun by a frame, 0 when there is none.
Long LastBegun(const clsLayer& layer, Long frame) {
    const auto after =
        std::upper_bound(layer.colObject.begin(), layer.colObject.end(), frame,
                         [](Long at, const auto& object) { return at < object->StartFrame(); });
    return static_cast<Long>(after - layer.colObject.begin());
}

}  // namespace

FramePlacement::FramePlacement(const clsLayer& layer, Long frame) : layer_(layer), frame_(frame) {
    const Long index = LastBegun(layer, frame);
    if (index == 0) return;
    const clsLayerObject& object = *layer.Object(index);
    if (object.Placement() == nullptr || !object.blVisible) return;
    // A tween that ends before the next key frame begins holds its last place.
    if (object.CheckFrame(frame) || OpensTween(layer, index)) index_ = index;
}

/// What the key frame shows is still on the stage when the next one begins.
bool FramePlacement::ContinuesFrom(Long index) const {
    const clsLayerObject& object = *layer_.Object(index);
    return object.blVisible && object.Placement() != nullptr &&
           (OpensTween(layer_, index) ||
            object.endFrame() >= layer_.Object(index + 1)->StartFrame() - 1);
}

/// The key frame, no tween's start, ends one whose character is its own, and goes on showing that.
bool FramePlacement::EndsSpecialTween(Long index, const LayerCharacter& character) const {
    return index > 1 && !OpensTween(layer_, index) && OpensTween(layer_, index - 1) &&
           IsDeformed(layer_, index - 1, character);
}

/// A morph lies behind the key frame, and no new character since.
bool FramePlacement::MorphEnded(const LayerCharacter& character) const {
    for (Long index = index_ - 1; index >= 1 && ContinuesFrom(index); --index) {
        if (OpensTween(layer_, index)) return true;
        if (IsDeformed(layer_, index, character) || EndsSpecialTween(index, character))
            return false;
    }
    return false;
}

void FramePlacement::ChooseCharacter(clsSWFTagPlaceObject& tag,
                                     const LayerCharacter& character) const {
    const auto take = [&tag](DeformedCharacter own) {
        tag.PlaceID = own.Identifier;
        tag.PlaceCnt = own.PlaceCount;
    };
    if (EndsSpecialTween(index_, character)) {
        take(DeformedAt(layer_, index_ - 1, character));
        tag.Ratio(FullRatio);
    } else if (IsDeformed(layer_, index_, character)) {
        take(DeformedAt(layer_, index_, character));
    } else if (TweenOf(layer_, index_, character).blMorph && MorphEnded(character)) {
        tag.Ratio(FullRatio);
    }
}

/// The list runs through all key frames that follow each other without a gap, each of which begins
/// with a new picture.
std::int64_t FramePlacement::KomaPicture(Long displayCount) const {
    const auto lastOf = [displayCount](Long frames) { return (frames - 1) / displayCount; };
    const Long begun = frame_ - Object().StartFrame() + 1;
    std::int64_t picture = lastOf(std::min(begun, SpanOf(layer_, index_)));
    for (Long index = index_ - 1; index >= 1 && ContinuesFrom(index); --index)
        picture += lastOf(SpanOf(layer_, index)) + 1;
    return picture;
}

std::shared_ptr<clsSWFTagPlaceObject> FramePlacement::Place(clsSWFAdmin& admin,
                                                            const LayerCharacter& character) const {
    const clsLayerObjElement& element = *Object().Placement();
    auto tag =
        NewPlaceObject(character.Identifier, character.Depth, element, character.Origin, nullptr);
    tag->PlaceCnt = character.PlaceCount;
    tag->ClippingDepth = character.ClippingDepth;
    tag->ObjIndex = index_;
    ChooseCharacter(*tag, character);
    if (!OpensTween(layer_, index_)) {
        admin.AddPlaceObj(1, tag);
        return tag;
    }
    const clsLayerObject& end = *layer_.Object(index_ + 1);
    Tween tween = TweenOf(layer_, index_, character);
    tween.StartTag = tag;
    tween.EndTag = NewPlaceObject(0, character.Depth, *end.Placement(), character.Origin, &element);
    const Long shown = std::min(frame_ - tween.Frame, tween.Span - 1);
    AddTween(admin, tween, PathOf(Object(), end, character.Origin), tween.Frame + shown);
    return tag;
}

}  // namespace tamber

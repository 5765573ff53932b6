#include "swf/authoring/TimelineWalk.h"

#include <algorithm>

#include "swf/authoring/TimelineRows.h"
#include "swf/authoring/mdlSWFAuthoring.h"

namespace tamber {

namespace {

/// The drawing of a layer, which key frames may deform.
class DrawingCharacters : public LayerCharacters {
public:
    DrawingCharacters(SymbolDefiner& definer, const Timeline& timeline, const clsLayer& layer,
                      ShownCharacter first, Long lateFrame)
        : definer_(definer),
          timeline_(timeline),
          layer_(layer),
          first_(first),
          lateFrame_(lateFrame) {}

    ShownCharacter First() const override { return first_; }
    ShownCharacter Own(const clsLayerObject& start, const clsLayerObject* end) override {
        const Long frame =
            timeline_.IsMain() ? std::min(start.StartFrame(), lateFrame_) : timeline_.SpriteFrame;
        return definer_.DefineDeformed(timeline_.Admin, layer_, start, end, frame);
    }

private:
    SymbolDefiner& definer_;
    const Timeline& timeline_;
    const clsLayer& layer_;
    ShownCharacter first_;
    Long lateFrame_;
};

}  // namespace

void TimelineWalk::WriteTimeline(const Timeline& timeline) {
    const Long count = timeline.Layers.Count();
    Long depth = topToBottom_ ? TopDepth : BottomDepth;
    for (const Long index : WalkedRows(timeline.Layers, topToBottom_)) {
        if (timeline.IsMain()) ShowProgress(topToBottom_ ? index - 1 : count - index, count);
        WriteLayer(timeline, index, depth);
    }
    if (timeline.IsMain()) ShowProgress(count, count);
}

void TimelineWalk::WriteLayer(const Timeline& timeline, Long index, Long& depth) {
    const clsLayer& layer = *timeline.Layers(index);
    const Long kind = layer.SymbolData()->eType();
    if (build_.Left.IsGated(layer)) return;
    WriteUnplaced(timeline, layer);
    const Long depths = KindOf(kind).blTakesDepths ? layer.DepthCnt(true) : 0;
    if (depths == 0) return;
    if (topToBottom_) depth -= depths - 1;
    if (!CanPlace(kind))
        build_.Left.LeaveOut(layer);
    else if (IsWalked(timeline, index, depth, depths))
        PlaceLayer(timeline, index, depth);
    depth += topToBottom_ ? -1 : depths;
}

void TimelineWalk::PlaceLayer(const Timeline& timeline, Long index, Long depth) {
    const clsLayer& layer = *timeline.Layers(index);
    const clsSymbolData& symbol = *layer.SymbolData();
    LayerPlace place;
    place.Depth = depth;
    place.ClippingDepth = mdlSWFAuthoring::ClipDepthOf(timeline.Layers, index, layer.ClippingDepth);
    place.Origin = timeline.Origin;
    if (symbol.eType() == KindKoma) {
        PlaceKomas(timeline, index, place);
        return;
    }
    const Long last = DefineLayer(timeline, layer, depth);
    if (last == 0) return;
    if (symbol.eTypeEx() == KindSprite && HasScripts())
        place.Actions = build_.Scripts.ClipActions(layer);
    if (symbol.eType() == KindVector) {
        PlaceDrawing(timeline, index, place, last);
        return;
    }
    SingleCharacter character({last, 1});
    Place(timeline, index, place, character);
}

/// The last identifier of what a layer shows.
Long TimelineWalk::DefineLayer(const Timeline& timeline, const clsLayer& layer, Long depth) {
    const clsSymbolData& symbol = *layer.SymbolData();
    if (symbol.eType() != KindButton)
        return definer_.EnsureDefined(timeline.Admin, &layer, symbol, LateFrame());
    if (layer.ObjectCount() == 0) return 0;
    const Long frame = timeline.IsMain() ? ButtonFrame(layer) : timeline.SpriteFrame;
    return definer_.DefineButton(timeline.Admin, layer, depth, frame, LateFrame());
}

void TimelineWalk::PlaceDrawing(const Timeline& timeline, Long index, const LayerPlace& place,
                                Long last) {
    const clsLayer& layer = *timeline.Layers(index);
    const Long count = layer.DepthCnt(false);
    DrawingCharacters characters(definer_, timeline, layer, {last + 1 - count, count}, LateFrame());
    Place(timeline, index, place, characters);
}

void TimelineWalk::PlaceKomas(const Timeline& timeline, Long index, const LayerPlace& place) {
    const clsLayer& layer = *timeline.Layers(index);
    build_.Left.CheckKomas(layer);
    const Long frame = timeline.Admin.FrameCount() == 1 ? 1 : 2;
    std::vector<Long> identifiers =
        definer_.DefineKomas(timeline.Admin, layer, timeline.IsMain(), frame);
    if (identifiers.empty()) return;
    KomaCharacters characters(std::move(identifiers));
    Place(timeline, index, place, characters);
}

}  // namespace tamber

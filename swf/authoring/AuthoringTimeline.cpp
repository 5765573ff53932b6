#include <algorithm>
#include <utility>

#include "document/elements/SymbolKinds.h"
#include "document/elements/clsObjBackGround.h"
#include "document/elements/clsObjFrameAction.h"
#include "document/elements/clsObjFrameLabel.h"
#include "document/records/clsPropertyKoma.h"
#include "document/records/clsPropertyVector.h"
#include "platform/UserInterface.h"
#include "platform/text.h"
#include "swf/authoring/Authoring.h"
#include "swf/authoring/FramePlacement.h"
#include "swf/authoring/LayerPlacement.h"
#include "swf/authoring/MovieLimits.h"
#include "swf/authoring/TimelineRows.h"
#include "swf/authoring/VectorDefinition.h"
#include "swf/mdlSWFTag.h"

namespace tamber {

namespace {

constexpr Long TopDepth = 16383;
constexpr Long BottomDepth = 257;
constexpr Long MovieVersion = 6;

/// For a picture of a koma and a state of a button: buttons are made for layers, and komas have no
/// character of their own.
bool CanBePart(Long kind) {
    return KindOf(kind).blPlaced && kind != KindButton && kind != KindKoma;
}

bool IsEverSeen(const clsLayer& layer) {
    return std::any_of(layer.colObject.begin(), layer.colObject.end(),
                       [](const auto& object) { return object->blVisible; });
}

}  // namespace

void Authoring::WriteTimeline(const Timeline& timeline) {
    const Long count = timeline.Layers.Count();
    const bool falling = request_.blTopToBottom;
    Long depth = falling ? TopDepth : BottomDepth;
    for (const Long index : WalkedRows(timeline.Layers, falling)) {
        if (timeline.IsMain()) ShowProgress(falling ? index - 1 : count - index, count);
        WriteLayer(timeline, index, depth);
    }
    if (timeline.IsMain()) ShowProgress(count, count);
}

PlacedTags Authoring::WriteFrameSnapshot(clsSWFAdmin& admin, const SnapshotRequest& snapshot) {
    snapshot_ = &snapshot;
    admin.FrameCount(1);
    WriteTimeline({admin, *snapshot.Layers, {}});
    snapshot_ = nullptr;
    return std::exchange(placed_, {});
}

Long Authoring::SnapshotFrame(const Timeline& timeline) const {
    return snapshot_ != nullptr && timeline.IsMain() ? snapshot_->Frame : 1;
}

bool Authoring::IsWalked(const Timeline& timeline, Long index, Long depth, Long depths) const {
    if (snapshot_ == nullptr) return true;
    // Of a movie that is refused for its many rows, the canvas shows those that fit.
    if (depth < 1 || depth + depths > BottomDepth + MaxDepths) return false;
    if (timeline.IsMain() && (index < snapshot_->FirstRow || index > snapshot_->LastRow))
        return false;
    return !FramePlacement(*timeline.Layers(index), SnapshotFrame(timeline)).Empty();
}

void Authoring::Warn(String text, const clsLayer& layer) {
    told_.push_back({std::move(text),
                     String(ProgramTitle),
                     MessageIcon::Warning,
                     {.Layer = layer.LayerNameView()}});
}

bool Authoring::IsGated(const clsLayer& layer) {
    const Long kind = layer.SymbolData()->eType();
    const Long version = mdlSWFTag::swfVersion();
    const String name = layer.LayerNameView();
    const String cannot = u"SWF" + ToText(version) + u"では使用できません。\r\n";
    if ((kind == KindMovie || kind == KindMovieEmp) && version < MovieVersion) {
        Warn(u"FLVビデオ再生はSWF6以降の機能です。\r\n" + cannot + u"動画（" + name + u"）", layer);
        return true;
    }
    if (kind == KindLink && version < LinkVersion) {
        Warn(u"リンクシンボルはSWF5以降の機能です。\r\n" + cannot + u"リンクシンボル（" + name +
                 u"）",
             layer);
        return true;
    }
    return false;
}

void Authoring::LeaveOut(const clsLayer& layer) {
    if (!leftOut_.insert(&layer).second) return;
    Warn(u"この種類のレイヤーの生成には対応していません。\r\n" + layer.SymbolData()->TypeText() +
             u"（" + layer.LayerNameView() + u"）",
         layer);
}

void Authoring::LeaveOutKomas(const clsLayer& layer) {
    const auto& komas = *layer.SymbolData()->Property<clsPropertyKoma>()->colKomas;
    const bool whole = std::all_of(komas.begin(), komas.end(),
                                   [](const auto& koma) { return CanBePart(koma->eType()); });
    if (whole || !leftOut_.insert(&layer).second) return;
    Warn(
        u"生成に対応していない種類のコマがあります。\r\nコマ動画（" + layer.LayerNameView() + u"）",
        layer);
}

/// Once for a symbol. The canvas shows its movie in a player that knows the gradient.
void Authoring::WarnOfFocus(const clsSymbolData& symbol) {
    const Long version = mdlSWFTag::swfVersion();
    if (version >= FocalVersion || snapshot_ != nullptr) return;
    if (!HasFocalGradient(*symbol.Property<clsPropertyVector>())) return;
    if (!focal_.insert(&symbol).second) return;
    Notice notice;
    notice.Text = u"焦点をずらした円形グラデーションはSWF8以降の機能です。\r\nSWF" +
                  ToText(version) + u"では正しく表示されません。\r\nベクタ（" + symbol.Value() +
                  u"）";
    notice.Severity = MessageIcon::Warning;
    notice.Place.SymbolID = symbol.ID;
    told_.push_back(std::move(notice));
}

void Authoring::LeaveOutStates(const clsLayer& layer) {
    const auto& button = *layer.SymbolData()->Property<clsPropertyButton>();
    const auto whole = [](const auto& state) { return !state || CanBePart(state->eType()); };
    if ((whole(button.UpSymbol()) && whole(button.OverSymbol()) && whole(button.DownSymbol()) &&
         whole(button.HitTestSymbol())) ||
        !leftOut_.insert(&layer).second)
        return;
    Warn(u"生成に対応していない種類の状態があります。\r\nボタン（" + layer.LayerNameView() + u"）",
         layer);
}

void Authoring::WriteLayer(const Timeline& timeline, Long index, Long& depth) {
    const clsLayer& layer = *timeline.Layers(index);
    const Long kind = layer.SymbolData()->eType();
    if (IsGated(layer)) return;
    if (snapshot_ == nullptr) WriteUnplaced(timeline, layer);
    const Long depths = KindOf(kind).blTakesDepths ? layer.DepthCnt(true) : 0;
    if (depths == 0) return;
    if (request_.blTopToBottom) depth -= depths - 1;
    if (!KindOf(kind).blPlaced)
        LeaveOut(layer);
    else if (IsWalked(timeline, index, depth, depths))
        PlaceLayer(timeline, index, depth);
    depth += request_.blTopToBottom ? -1 : depths;
}

/// What takes no depth.
void Authoring::WriteUnplaced(const Timeline& timeline, const clsLayer& layer) {
    const Long kind = layer.SymbolData()->eType();
    if (kind == KindBackGround) WriteBackground(timeline, layer);
    if (kind == KindFrameLabel) WriteLabels(timeline, layer);
    if (kind == KindSound) LeaveOut(layer);
    if (kind == KindFrameAction) WriteFrameActions(timeline, layer);
}

void Authoring::WriteBackground(const Timeline& timeline, const clsLayer& layer) {
    if (layer.ObjectCount() == 0 || !timeline.IsMain()) return;
    if (const auto* back = layer.Object(1)->ObjectAs<clsObjBackGround>())
        timeline.Admin.BackGroundColor = back->BackColor();
}

void Authoring::WriteFrameActions(const Timeline& timeline, const clsLayer& layer) {
    for (const auto& object : layer.colObject) {
        const auto* action = object->ObjectAs<clsObjFrameAction>();
        if (!object->blVisible || action == nullptr) continue;
        const String script = action->inScript.Script(mdlSWFTag::swfVersion());
        if (!script.empty())
            Scripts.CompileFrameAction(timeline.Admin, timeline.IsMain(), object->StartFrame(),
                                       script);
    }
}

void Authoring::WriteLabels(const Timeline& timeline, const clsLayer& layer) {
    for (const auto& object : layer.colObject) {
        const auto* label = object->ObjectAs<clsObjFrameLabel>();
        if (!object->blVisible || label == nullptr) continue;
        const bool anchor = timeline.IsMain() && label->blAnchor;
        timeline.Admin.SetFrameLabel(object->StartFrame(), label->LabelName, anchor);
        if (anchor && request_.AnchorLabels != nullptr)
            request_.AnchorLabels->append(u"\t").append(label->LabelName);
    }
}

void Authoring::PlaceLayer(const Timeline& timeline, Long index, Long depth) {
    const clsLayer& layer = *timeline.Layers(index);
    // What is never seen takes no frame.
    if (snapshot_ == nullptr && !IsEverSeen(layer)) return;
    const clsSymbolData& symbol = *layer.SymbolData();
    LayerCharacter character;
    character.Depth = depth;
    character.ClippingDepth =
        mdlSWFAuthoring::ClipDepthOf(timeline.Layers, index, layer.ClippingDepth);
    character.Origin = timeline.Origin;
    if (symbol.eType() == KindKoma) {
        PlaceKomas(timeline, index, character);
        return;
    }
    const Long last = symbol.eType() == KindButton
                          ? DefineButton(timeline, layer, depth)
                          : EnsureDefined(timeline.Admin, &layer, symbol, LateFrame());
    if (last == 0) return;
    std::vector<SwfEventActions> actions;
    if (symbol.eTypeEx() == KindSprite && snapshot_ == nullptr)
        actions = Scripts.ClipActions(layer);
    character.Actions = &actions;
    if (symbol.eType() == KindVector) {
        character.PlaceCount = layer.DepthCnt(false);
        character.Deform = [&](const clsLayerObject& start, const clsLayerObject* end) {
            return Deform(timeline, layer, start, end);
        };
    }
    character.Identifier = last + 1 - character.PlaceCount;
    Place(timeline, index, character);
}

void Authoring::Place(const Timeline& timeline, Long index, const LayerCharacter& character) {
    const clsLayer& layer = *timeline.Layers(index);
    if (snapshot_ == nullptr) {
        LayerPlacement(timeline.Admin, layer, character).Run();
        return;
    }
    auto tag = FramePlacement(layer, SnapshotFrame(timeline)).Place(timeline.Admin, character);
    tag->LayerIndex = index;
    if (timeline.IsMain()) placed_.push_back(std::move(tag));
}

Long Authoring::DefineButton(const Timeline& timeline, const clsLayer& layer, Long depth) {
    if (layer.ObjectCount() == 0) return 0;
    LeaveOutStates(layer);
    const auto& button = *layer.SymbolData()->Property<clsPropertyButton>();
    const Long start = snapshot_ == nullptr ? layer.Object(1)->StartFrame() : LateFrame();
    const Long frame = timeline.IsMain() ? start : timeline.SpriteFrame;
    const ButtonCharacters characters = DefineButtonStates(timeline.Admin, button, LateFrame());
    const auto tag = GetNewButton(timeline.Admin, button, characters, depth);
    if (snapshot_ == nullptr) tag->Actions = Scripts.ButtonActions(layer);
    movie_.AddTag(frame, tag, true);
    if (button.bl9Scale && mdlSWFTag::swfVersion() >= ScalingGridVersion)
        movie_.AddTag(frame,
                      timeline.Admin.GetNewScalingGrid(tag->ID, button.GridLeft, button.GridRight,
                                                       button.GridTop, button.GridBottom),
                      true);
    return tag->ID;
}

void Authoring::PlaceKomas(const Timeline& timeline, Long index, LayerCharacter character) {
    const clsLayer& layer = *timeline.Layers(index);
    LeaveOutKomas(layer);
    const Long frame = timeline.Admin.FrameCount() == 1 ? 1 : 2;
    std::vector<Long> identifiers =
        DefineKomas(timeline.Admin, layer, frame, SnapshotFrame(timeline));
    if (identifiers.empty()) return;
    character.Identifier = identifiers.front();
    KomaTable table(layer.SymbolData()->Property<clsPropertyKoma>()->DispCount,
                    std::move(identifiers));
    character.Koma = &table;
    Place(timeline, index, character);
}

/// Defines what a deformed key frame shows. It is divided where its layer has the depths.
DeformedCharacter Authoring::Deform(const Timeline& timeline, const clsLayer& layer,
                                    const clsLayerObject& start, const clsLayerObject* end) {
    const auto* from = start.ObjectAs<clsObjVector>();
    const auto* to = end != nullptr ? end->ObjectAs<clsObjVector>() : nullptr;
    const auto& record = *layer.SymbolData()->Property<clsPropertyVector>();
    const DeformedVector deformed = DeformSymbol(*layer.SymbolData(), from, to);
    auto& own = *deformed.Start->Property<clsPropertyVector>();
    const bool wanted =
        record.blDivide || (from != nullptr && from->blDivide) || (to != nullptr && to->blDivide);
    own.blDivide = wanted && layer.DepthCnt(true) == own.ShapeCount();
    const Long form = layer.ClippingDepth != 0 ? VectorForm::Clip : VectorForm::Plain;
    WarnOfFocus(*layer.SymbolData());
    const Long frame =
        timeline.IsMain() ? std::min(start.StartFrame(), LateFrame()) : timeline.SpriteFrame;
    const Long last =
        tamber::DefineVector({timeline.Admin, movie_, frame, told_}, *deformed.Start, form);
    const Long count = own.blDivide && layer.ClippingDepth == 0 ? own.ShapeCount() : 1;
    return {last + 1 - count, count};
}

}  // namespace tamber

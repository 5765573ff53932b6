#include "swf/mdlSWFAuthoring.h"

#include <algorithm>
#include <set>

#include "document/Project.h"
#include "document/SymbolKinds.h"
#include "document/clsLayerFolder.h"
#include "document/clsObjBackGround.h"
#include "document/clsObjFrameAction.h"
#include "document/clsObjFrameLabel.h"
#include "document/clsPropertyBmp.h"
#include "document/clsPropertyKoma.h"
#include "document/clsPropertySprite.h"
#include "document/clsPropertyVector.h"
#include "platform/UserInterface.h"
#include "platform/text.h"
#include "swf/FitText.h"
#include "swf/LayerPlacement.h"
#include "swf/MovieLimits.h"
#include "swf/TextDefinition.h"
#include "swf/VectorDefinition.h"
#include "swf/clsSWFAdmin.h"
#include "swf/tags/clsSWFTagDefineSprite.h"
#include "swf/tags/clsSWFTagExport.h"

namespace tamber::mdlSWFAuthoring {

namespace {

constexpr Long TwipsPerPixel = 20;
constexpr Long TopDepth = 16383;
constexpr Long BottomDepth = 257;
constexpr Long MovieVersion = 6;
constexpr Long LinkVersion = 5;
constexpr Long ClipActionVersion = 5;
constexpr Long ScalingGridVersion = 8;
constexpr Long BitmapExportVersion = 8;

Long ReverseBytes(Long color) {
    return (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}

/// Kinds whose definitions this generation can write.
bool CanDefine(Long kind) {
    return kind == KindBitmap || kind == KindText || kind == KindVector || kind == KindSprite ||
           kind == KindKoma;
}

bool IsPlaced(Long kind) {
    switch (kind) {
        case KindBitmap:
        case KindText:
        case KindVector:
        case KindSprite:
        case KindMovie:
        case KindMovieEmp:
        case KindButton:
        case KindKoma:
        case KindLink:
            return true;
        default:
            return false;
    }
}

/// A timeline being walked: its tags, and where its positions are counted from.
struct Timeline {
    clsSWFAdmin& Admin;
    const Collection<clsLayer>& Layers;
    TimelineOrigin Origin;
    /// Frame of the movie that a sprite's definitions go into; 0 for the movie's own timeline.
    Long SpriteFrame = 0;

    bool IsMain() const { return SpriteFrame == 0; }
};

/// One build: defines symbols on first need and walks the timelines.
class Authoring {
public:
    Authoring(const MovieRequest& request, clsSWFAdmin& movie) : request_(request), movie_(movie) {}

    void PreDefineFrameOne(clsSWFAdmin& admin);
    void DefineExports(clsSWFAdmin& admin, Long mode);
    void WriteTimeline(const Timeline& timeline);

private:
    /// `layer` is the one that shows the symbol, or null. The result is the last identifier.
    Long EnsureDefined(clsSWFAdmin& admin, const clsLayer* layer, clsSymbolData& symbol,
                       Long frame);
    Long DefineSymbol(clsSWFAdmin& admin, clsSymbolData& symbol, Long frame);
    void DefineSpriteChildren(clsSWFAdmin& admin, const clsPropertySprite& sprite, Long frame);
    std::vector<Long> DefineKomas(clsSWFAdmin& admin, const clsSymbolData& symbol, Long frame);
    void DefineBitmap(clsSWFAdmin& admin, clsSymbolData& symbol, Long frame);
    void DefineText(clsSWFAdmin& admin, clsSymbolData& symbol, Long frame);
    void DefineVector(clsSWFAdmin& admin, clsSymbolData& symbol, Long frame);
    void DefineSprite(clsSWFAdmin& admin, clsSymbolData& symbol, Long frame);
    void AddScalingGrid(clsSWFAdmin& admin, const clsPropertySprite& sprite, Long id, Long frame);
    void AddExport(clsSWFAdmin& admin, const clsSymbolData& symbol, Long id, Long frame);

    void WriteLayer(const Timeline& timeline, Long index, Long& depth);
    void WriteBackground(const Timeline& timeline, const clsLayer& layer);
    void WriteLabels(const Timeline& timeline, const clsLayer& layer);
    void PlaceLayer(const Timeline& timeline, Long index, Long depth);
    void PlaceKomas(const Timeline& timeline, const clsLayer& layer,
                    LayerPlacement::Character character);
    LayerPlacement::DeformedCharacter Deform(const Timeline& timeline, const clsLayer& layer,
                                             const clsLayerObject& start,
                                             const clsLayerObject* end);
    bool IsGated(const clsLayer& layer) const;
    void LeaveOut(const clsLayer& layer);
    void LeaveOutKomas(const clsLayer& layer);
    void LeaveOutScripts(const clsLayer& layer);
    void ShowProgress(Long done, Long total) const;

    const MovieRequest& request_;
    clsSWFAdmin& movie_;
    std::set<const clsLayer*> leftOut_;
    Long nesting_ = 0;
};

void Authoring::ShowProgress(Long done, Long total) const {
    if (request_.blProgress) CurrentUserInterface().Progress(u"", done, total);
}

void Authoring::PreDefineFrameOne(clsSWFAdmin& admin) {
    for (const auto& layer : *request_.Layers) {
        if (!layer->Visible(true) || layer->ObjectCount() == 0) continue;
        if (layer->Object(1)->StartFrame() != 1) continue;
        clsSymbolData& symbol = *layer->SymbolData();
        if (symbol.eType() != KindKoma) {
            EnsureDefined(admin, layer.get(), symbol, 1);
            continue;
        }
        const auto& komas = *symbol.Property<clsPropertyKoma>()->colKomas;
        if (!komas.Empty()) EnsureDefined(admin, nullptr, *komas(1), 1);
    }
}

void Authoring::DefineExports(clsSWFAdmin& admin, Long mode) {
    const Long lateFrame = std::min(mode, 2);
    for (const auto& symbol : *request_.Library) {
        if (!symbol->blExportEx()) continue;
        if (!CanDefine(symbol->eType())) {
            ShowMessage(u"「" + symbol->ExportName() +
                        u"」は書き出せません。\r\nこの種類のシンボルの生成には対応していません。");
            continue;
        }
        const Long frame = symbol->blExportTop ? 1 : lateFrame;
        if (symbol->eType() == KindVector) symbol->DefineNum = VectorForm::Clip;
        if (symbol->DefineID() == 0) DefineSymbol(admin, *symbol, frame);
        symbol->DefineNum = VectorForm::Plain;
    }
}

Long Authoring::EnsureDefined(clsSWFAdmin& admin, const clsLayer* layer, clsSymbolData& symbol,
                              Long frame) {
    if (const auto* drawing = symbol.Property<clsPropertyVector>()) {
        const bool several = drawing->MorphSymbol() || drawing->blDivide;
        if (layer == nullptr && several) symbol.DefineNum = VectorForm::MorphStart;
        if (layer != nullptr && layer->ClippingDepth != 0) symbol.DefineNum = VectorForm::Clip;
    }
    const Long id = symbol.DefineID() == 0 ? DefineSymbol(admin, symbol, frame) : symbol.DefineID();
    symbol.DefineNum = VectorForm::Plain;
    return id;
}

Long Authoring::DefineSymbol(clsSWFAdmin& admin, clsSymbolData& symbol, Long frame) {
    if (nesting_ > DeepestNesting) return 0;
    ++nesting_;
    if (symbol.eType() == KindBitmap) DefineBitmap(admin, symbol, frame);
    if (symbol.eType() == KindText) DefineText(admin, symbol, frame);
    if (symbol.eType() == KindVector) DefineVector(admin, symbol, frame);
    if (symbol.eType() == KindSprite) {
        DefineSpriteChildren(admin, *symbol.Property<clsPropertySprite>(), frame);
        DefineSprite(admin, symbol, frame);
    }
    --nesting_;
    return symbol.DefineID();
}

void Authoring::DefineSpriteChildren(clsSWFAdmin& admin, const clsPropertySprite& sprite,
                                     Long frame) {
    for (const auto& layer : *sprite.colLayer) {
        if (!layer->Visible(true)) continue;
        if (layer->SymbolData()->eType() == KindKoma)
            DefineKomas(admin, *layer->SymbolData(), frame);
        else
            EnsureDefined(admin, layer.get(), *layer->SymbolData(), frame);
    }
}

std::vector<Long> Authoring::DefineKomas(clsSWFAdmin& admin, const clsSymbolData& symbol,
                                         Long frame) {
    std::vector<Long> identifiers;
    for (const auto& koma : *symbol.Property<clsPropertyKoma>()->colKomas)
        if (const Long id = EnsureDefined(admin, nullptr, *koma, frame)) identifiers.push_back(id);
    return identifiers;
}

void Authoring::DefineBitmap(clsSWFAdmin& admin, clsSymbolData& symbol, Long frame) {
    const clsPropertyBmp& picture = *symbol.Property<clsPropertyBmp>();
    Long bitmapID = 0;
    if (picture.blJpeg) {
        auto tag = admin.GetNewJpeg(picture.bufBmp, picture.bufAlpha);
        bitmapID = tag->ID;
        admin.AddTag(frame, std::move(tag), true);
    } else {
        auto tag =
            admin.GetNewBitmap(picture.bufBmp, picture.BitCount, picture.Width, picture.height);
        bitmapID = tag->ID;
        admin.AddTag(frame, std::move(tag), true);
    }
    auto shape = admin.GetNewBitmapShape(bitmapID, picture.Width, picture.height);
    symbol.DefineID(shape->ID);
    admin.AddTag(frame, std::move(shape), true);
    const bool exportPicture = mdlSWFTag::swfVersion() >= BitmapExportVersion;
    AddExport(admin, symbol, exportPicture ? bitmapID : symbol.DefineID(), frame);
}

void Authoring::DefineText(clsSWFAdmin& admin, clsSymbolData& symbol, Long frame) {
    if (admin.inFontAdmin && FollowsOutline(symbol)) {
        const auto sprite = FitTextSprite(symbol, *admin.inFontAdmin);
        symbol.DefineID(DefineSymbol(admin, *sprite, frame));
    } else {
        tamber::DefineText(admin, symbol, frame);
    }
    AddExport(admin, symbol, symbol.DefineID(), frame);
}

void Authoring::DefineVector(clsSWFAdmin& admin, clsSymbolData& symbol, Long frame) {
    tamber::DefineVector({admin, movie_, frame}, symbol);
    if (symbol.DefineNum == VectorForm::Clip && symbol.DefineID() != 0)
        AddExport(admin, symbol, symbol.DefineID(), frame);
}

void Authoring::DefineSprite(clsSWFAdmin& admin, clsSymbolData& symbol, Long frame) {
    const clsPropertySprite& sprite = *symbol.Property<clsPropertySprite>();
    auto inner = std::make_shared<clsSWFAdmin>();
    inner->SetDimension(0, sprite.Width, 0, sprite.height, 0);
    inner->FrameCount(std::clamp(LastShownFrame(*sprite.colLayer), 1, MaxFrames));
    inner->Ver = mdlSWFTag::swfVersion();
    inner->FrameRate = admin.FrameRate;
    inner->colDefineObj(admin.colDefineObj());
    const TimelineOrigin origin{static_cast<Single>(sprite.baseX),
                                static_cast<Single>(sprite.baseY)};
    WriteTimeline({*inner, *sprite.colLayer, origin, frame});

    auto tag = std::make_shared<clsSWFTagDefineSprite>();
    tag->FrameCount = inner->FrameCount();
    tag->SaveTimeline = [inner] { inner->FramesSave(); };
    tag->ID = inner->AddDefinition(tag);
    admin.DefineID = tag->ID;
    // The list holds the tag, which holds the timeline: it must not hold the list too.
    inner->colDefineObj(std::make_shared<clsSWFAdmin::DefinitionList>());
    for (auto& action : inner->colInitAction) {
        if (action->SpriteID < 0) action->SpriteID = tag->ID;
        admin.colInitAction.push_back(action);
    }
    const Long id = tag->ID;
    symbol.DefineID(id);
    admin.AddTag(frame, std::move(tag), true);
    admin.AddColInitAction(frame);
    AddScalingGrid(admin, sprite, id, frame);
    AddExport(admin, symbol, id, frame);
}

void Authoring::AddScalingGrid(clsSWFAdmin& admin, const clsPropertySprite& sprite, Long id,
                               Long frame) {
    if (!sprite.bl9Scale || mdlSWFTag::swfVersion() < ScalingGridVersion) return;
    const auto side = [](Long grid, Long base) {
        return mdlSWFTag::ToField(static_cast<double>(grid) -
                                  static_cast<double>(base) * TwipsPerPixel);
    };
    admin.AddTag(frame,
                 admin.GetNewScalingGrid(
                     id, side(sprite.GridLeft, sprite.baseX), side(sprite.GridRight, sprite.baseX),
                     side(sprite.GridTop, sprite.baseY), side(sprite.GridBottom, sprite.baseY)),
                 true);
}

void Authoring::AddExport(clsSWFAdmin& admin, const clsSymbolData& symbol, Long id, Long frame) {
    if (!symbol.blExport || symbol.ExportName().empty()) return;
    auto tag = std::make_shared<clsSWFTagExport>();
    tag->AddSymbol(id, symbol.ExportName());
    admin.AddTag(frame, std::move(tag), true);
    admin.IncPlaceCount(id, 1);
}

void Authoring::WriteTimeline(const Timeline& timeline) {
    const Long count = timeline.Layers.Count();
    const bool falling = request_.blTopToBottom;
    Long depth = falling ? TopDepth : BottomDepth;
    for (Long i = 1; i <= count; ++i) {
        const Long index = falling ? i : count + 1 - i;
        if (timeline.IsMain()) ShowProgress(i - 1, count);
        const clsLayer& layer = *timeline.Layers(index);
        if (layer.Visible(true))
            WriteLayer(timeline, index, depth);
        else if (const clsLayerFolder* folder = falling ? layer.Folder() : nullptr)
            i += std::clamp(folder->LayerCount, 0, count - i);
    }
    if (timeline.IsMain()) ShowProgress(count, count);
}

bool Authoring::IsGated(const clsLayer& layer) const {
    const Long kind = layer.SymbolData()->eType();
    const Long version = mdlSWFTag::swfVersion();
    const String name = layer.LayerNameView();
    const String cannot = u"SWF" + ToText(version) + u"では使用できません。\r\n";
    if ((kind == KindMovie || kind == KindMovieEmp) && version < MovieVersion) {
        ShowMessage(u"FLVビデオ再生はSWF6以降の機能です。\r\n" + cannot + u"動画（" + name + u"）",
                    ProgramTitle, MessageIcon::Warning);
        return true;
    }
    if (kind == KindLink && version < LinkVersion) {
        ShowMessage(u"リンクシンボルはSWF5以降の機能です。\r\n" + cannot + u"リンクシンボル（" +
                        name + u"）",
                    ProgramTitle, MessageIcon::Warning);
        return true;
    }
    return false;
}

void Authoring::LeaveOut(const clsLayer& layer) {
    if (!leftOut_.insert(&layer).second) return;
    ShowMessage(u"この種類のレイヤーの生成には対応していません。\r\n" +
                    layer.SymbolData()->TypeText() + u"（" + layer.LayerNameView() + u"）",
                ProgramTitle, MessageIcon::Warning);
}

void Authoring::LeaveOutKomas(const clsLayer& layer) {
    const auto& komas = *layer.SymbolData()->Property<clsPropertyKoma>()->colKomas;
    const bool whole = std::all_of(komas.begin(), komas.end(),
                                   [](const auto& koma) { return CanDefine(koma->eType()); });
    if (whole || !leftOut_.insert(&layer).second) return;
    ShowMessage(
        u"生成に対応していない種類のコマがあります。\r\nコマ動画（" + layer.LayerNameView() + u"）",
        ProgramTitle, MessageIcon::Warning);
}

void Authoring::LeaveOutScripts(const clsLayer& layer) {
    const Long version = mdlSWFTag::swfVersion();
    if (layer.Script(version).empty()) return;
    if (version < ClipActionVersion)
        ShowMessage(u"クリップアクションはSWF" + ToText(version) +
                        u"では使用できません。\r\nクリップアクション（" + layer.LayerNameView() +
                        u"）",
                    ProgramTitle, MessageIcon::Warning);
    else if (leftOut_.insert(&layer).second)
        ShowMessage(u"スクリプトの生成には対応していません。\r\nクリップアクション（" +
                        layer.LayerNameView() + u"）",
                    ProgramTitle, MessageIcon::Warning);
}

void Authoring::WriteLayer(const Timeline& timeline, Long index, Long& depth) {
    const clsLayer& layer = *timeline.Layers(index);
    const Long kind = layer.SymbolData()->eType();
    if (IsGated(layer)) return;
    if (kind == KindBackGround) WriteBackground(timeline, layer);
    if (kind == KindFrameLabel) WriteLabels(timeline, layer);
    if (kind == KindSound) LeaveOut(layer);
    if (kind == KindFrameAction) {
        for (const auto& object : layer.colObject) {
            const auto* action = object->ObjectAs<clsObjFrameAction>();
            if (object->blVisible && action != nullptr &&
                !action->inScript.Script(mdlSWFTag::swfVersion()).empty())
                LeaveOut(layer);
        }
    }
    const Long depths = IsPlaced(kind) ? layer.DepthCnt(true) : 0;
    if (depths == 0) return;
    if (request_.blTopToBottom) depth -= depths - 1;
    if (CanDefine(kind))
        PlaceLayer(timeline, index, depth);
    else
        LeaveOut(layer);
    depth += request_.blTopToBottom ? -1 : depths;
}

void Authoring::WriteBackground(const Timeline& timeline, const clsLayer& layer) {
    if (layer.ObjectCount() == 0 || !timeline.IsMain()) return;
    if (const auto* back = layer.Object(1)->ObjectAs<clsObjBackGround>())
        timeline.Admin.BackGroundColor = back->BackColor();
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
    clsSymbolData& symbol = *layer.SymbolData();
    LayerPlacement::Character character;
    character.Depth = depth;
    character.ClippingDepth = ClipDepthOf(timeline.Layers, index, layer.ClippingDepth);
    character.Origin = timeline.Origin;
    if (symbol.eType() == KindKoma) {
        PlaceKomas(timeline, layer, character);
        return;
    }
    if (symbol.eType() == KindSprite) LeaveOutScripts(layer);
    const Long last = EnsureDefined(timeline.Admin, &layer, symbol, 2);
    if (last == 0) return;
    if (symbol.eType() == KindVector) {
        character.PlaceCount = layer.DepthCnt(false);
        character.Deform = [&](const clsLayerObject& start, const clsLayerObject* end) {
            return Deform(timeline, layer, start, end);
        };
    }
    character.Identifier = last + 1 - character.PlaceCount;
    LayerPlacement(timeline.Admin, layer, character).Run();
}

void Authoring::PlaceKomas(const Timeline& timeline, const clsLayer& layer,
                           LayerPlacement::Character character) {
    LeaveOutKomas(layer);
    const Long frame = timeline.Admin.FrameCount() == 1 ? 1 : 2;
    const clsSymbolData& symbol = *layer.SymbolData();
    std::vector<Long> identifiers = DefineKomas(timeline.Admin, symbol, frame);
    if (identifiers.empty()) return;
    character.Identifier = identifiers.front();
    KomaTable table(symbol.Property<clsPropertyKoma>()->DispCount, std::move(identifiers));
    character.Koma = &table;
    LayerPlacement(timeline.Admin, layer, character).Run();
}

/// Defines what a deformed key frame shows. It is divided where its layer has the depths.
LayerPlacement::DeformedCharacter Authoring::Deform(const Timeline& timeline, const clsLayer& layer,
                                                    const clsLayerObject& start,
                                                    const clsLayerObject* end) {
    const auto* from = start.ObjectAs<clsObjVector>();
    const auto* to = end != nullptr ? end->ObjectAs<clsObjVector>() : nullptr;
    const auto& record = *layer.SymbolData()->Property<clsPropertyVector>();
    const DeformedVector deformed = DeformSymbol(*layer.SymbolData(), from, to);
    auto& own = *deformed.Start->Property<clsPropertyVector>();
    const bool wanted =
        record.blDivide || (from != nullptr && from->blDivide) || (to != nullptr && to->blDivide);
    own.blDivide = wanted && layer.DepthCnt(true) == own.ShapeCount();
    if (layer.ClippingDepth != 0) deformed.Start->DefineNum = VectorForm::Clip;
    const Long frame = timeline.IsMain() ? std::min(start.StartFrame(), 2) : timeline.SpriteFrame;
    tamber::DefineVector({timeline.Admin, movie_, frame}, *deformed.Start);
    const Long count = own.blDivide && layer.ClippingDepth == 0 ? own.ShapeCount() : 1;
    return {deformed.Start->DefineID() + 1 - count, count};
}

bool Refuse(const String& why) {
    ShowMessage(why, ProgramTitle, MessageIcon::Error);
    return false;
}

}  // namespace

Long LastShownFrame(const Collection<clsLayer>& layers) {
    Long last = 0;
    for (const auto& layer : layers) {
        if (!layer->Visible(true)) continue;
        for (Long i = layer->ObjectCount(); i >= 1; --i) {
            if (!layer->Object(i)->blVisible) continue;
            last = std::max(last, layer->Object(i)->endFrame());
            break;
        }
    }
    return last;
}

Long ClipDepthOf(const Collection<clsLayer>& layers, Long layerIndex, Long clippingDepth) {
    if (clippingDepth == 0) return 0;
    Long depths = 0;
    const Long first = std::max(layerIndex - clippingDepth, 1);
    for (Long i = layerIndex - 1; i >= first; --i) depths += layers(i)->DepthCnt(true);
    return std::max(depths, clippingDepth);
}

bool BuildMovie(const MovieRequest& request) {
    if (const String fault = MovieLimitFault(request); !fault.empty()) return Refuse(fault);
    mdlSWFTag::swfVersion(request.Version);
    clsSWFAdmin admin;
    admin.inFontAdmin = request.Fonts;
    admin.InitSWF();
    admin.SetDimension(0, request.Width, 0, request.Height, 0);
    admin.FrameRate = request.FrameRate;
    admin.Ver = request.Version;
    admin.FrameCount(LastShownFrame(*request.Layers));
    admin.BackGroundColor = ReverseBytes(request.BackColor);
    admin.blCompress = request.blCompress;
    for (const auto& symbol : *request.Library) symbol->InitDefineID();

    Authoring authoring(request, admin);
    authoring.PreDefineFrameOne(admin);
    if (request.blExports)
        authoring.DefineExports(admin, request.blExportsInFrameTwo ? 2 : admin.FrameCount());
    authoring.WriteTimeline({admin, *request.Layers, {}});
    if (admin.DefineID > MaxIdentifiers)
        return Refuse(u"シンボル数が多すぎます。\r\nSWFファイルは" + ToText(MaxIdentifiers) +
                      u"までです。");
    if (admin.Save(request.Path)) return true;
    return Refuse(request.Path + u"\r\n\r\nファイルに書き込めませんでした。");
}

}  // namespace tamber::mdlSWFAuthoring

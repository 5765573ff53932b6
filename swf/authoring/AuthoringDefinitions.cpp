#include <algorithm>

#include "document/Project.h"
#include "document/elements/SymbolKinds.h"
#include "document/records/clsPropertyBmp.h"
#include "document/records/clsPropertyClass.h"
#include "document/records/clsPropertyKoma.h"
#include "document/records/clsPropertyLinkSymbol.h"
#include "document/records/clsPropertySprite.h"
#include "document/records/clsPropertyVector.h"
#include "platform/UserInterface.h"
#include "platform/twips.h"
#include "script/InitBlock.h"
#include "swf/authoring/Authoring.h"
#include "swf/authoring/FitText.h"
#include "swf/authoring/FramePlacement.h"
#include "swf/authoring/MovieLimits.h"
#include "swf/authoring/TextDefinition.h"
#include "swf/authoring/VectorDefinition.h"
#include "swf/mdlSWFTag.h"
#include "swf/tags/clsSWFTagDefineSprite.h"
#include "swf/tags/clsSWFTagExport.h"

namespace tamber {

namespace {

constexpr Long BitmapExportVersion = 8;

/// Whether a symbol goes into a movie for its name, though nothing may place it.
bool IsExported(const clsSymbolData& symbol) {
    return symbol.blExportEx() && symbol.eType() != KindBackGround;
}

/// A definition gives the symbol an identifier.
bool HasCharacter(const clsSymbolData& symbol) {
    switch (symbol.eType()) {
        case KindBitmap:
        case KindText:
        case KindSprite:
        case KindClass:
            return true;
        case KindVector:
            return HasShapes(*symbol.Property<clsPropertyVector>());
        case KindLink:
            return mdlSWFTag::swfVersion() >= LinkVersion;
        default:
            return false;
    }
}

/// The picture that a koma's layer shows on a frame on which it is seen, null when none of its
/// pictures is anything to see.
const clsSymbolData* KomaOn(const clsLayer& layer, Long frame) {
    const auto& record = *layer.SymbolData()->Property<clsPropertyKoma>();
    std::vector<const clsSymbolData*> pictures;
    for (const auto& koma : *record.colKomas)
        if (HasCharacter(*koma)) pictures.push_back(koma.get());
    if (pictures.empty()) return nullptr;
    const auto picture = FramePlacement(layer, frame).KomaPicture(std::max(record.DispCount, 1));
    return pictures[static_cast<std::size_t>(picture) % pictures.size()];
}

TimelineOrigin OriginOf(const clsPropertySprite& sprite) {
    return {static_cast<Single>(sprite.baseX), static_cast<Single>(sprite.baseY)};
}

}  // namespace

void Authoring::ShowProgress(Long done, Long total) const {
    if (request_.blProgress) CurrentUserInterface().Progress(u"", done, total);
}

void Authoring::CollectClassLinks() {
    for (const auto& symbol : *request_.Library)
        if (symbol->eType() == KindSprite && symbol->blExportEx() && !symbol->LinkClassName.empty())
            Scripts.colClassLinks[symbol->LinkClassName].push_back(symbol->ExportName());
}

void Authoring::PreDefineFrameOne(clsSWFAdmin& admin) {
    for (const auto& layer : *request_.Layers) {
        if (!layer->Visible(true) || layer->ObjectCount() == 0) continue;
        if (layer->Object(1)->StartFrame() != 1) continue;
        const clsSymbolData& symbol = *layer->SymbolData();
        if (symbol.eType() != KindKoma) {
            EnsureDefined(admin, layer.get(), symbol, 1);
            continue;
        }
        // The first that is anything to see, which others may come before.
        for (const auto& koma : *symbol.Property<clsPropertyKoma>()->colKomas)
            if (EnsureDefined(admin, nullptr, *koma, 1) != 0) break;
    }
}

void Authoring::DefineExports(clsSWFAdmin& admin, Long mode) {
    const auto define = [&](bool classes, bool onTop) {
        for (const auto& symbol : *request_.Library)
            if (IsExported(*symbol) && symbol->blExportTop == onTop &&
                (symbol->eTypeEx() == KindClass) == classes)
                DefineExport(admin, *symbol, onTop ? 1 : std::min(mode, 2));
    };
    // A part is defined once: those of what stands in frame 1 come before the late ones take them.
    for (const bool classes : {false, true})
        for (const bool onTop : {true, false}) define(classes, onTop);
}

void Authoring::DefineExport(clsSWFAdmin& admin, const clsSymbolData& symbol, Long frame) {
    if (KindOf(symbol.eType()).blLacksExport) {
        told_.push_back({u"「" + symbol.ExportName() +
                             u"」は書き出せません。\r\n"
                             u"この種類のシンボルの生成には対応していません。",
                         String(ProgramTitle),
                         MessageIcon::None,
                         {.SymbolID = symbol.ID}});
        return;
    }
    EnsureForm(admin, symbol, symbol.eType() == KindVector ? VectorForm::Clip : VectorForm::Plain,
               frame);
}

Long Authoring::EnsureDefined(clsSWFAdmin& admin, const clsLayer* layer,
                              const clsSymbolData& symbol, Long frame) {
    Long form = VectorForm::Plain;
    if (const auto* drawing = symbol.Property<clsPropertyVector>()) {
        const bool several = drawing->MorphSymbol() || drawing->blDivide;
        if (layer == nullptr && several) form = VectorForm::MorphStart;
        if (layer != nullptr && layer->ClippingDepth != 0) form = VectorForm::Clip;
    }
    return EnsureForm(admin, symbol, form, frame);
}

Long Authoring::EnsureForm(clsSWFAdmin& admin, const clsSymbolData& symbol, Long form, Long frame) {
    const Long known = identifiers_.IdentifierOf(symbol, form);
    return known != 0 ? known : DefineSymbol(admin, symbol, form, frame);
}

Long Authoring::DefineSymbol(clsSWFAdmin& admin, const clsSymbolData& symbol, Long form,
                             Long frame) {
    if (nesting_ > DeepestNesting) return 0;
    ++nesting_;
    const Long id = DefineByKind(admin, symbol, form, frame);
    --nesting_;
    if (id != 0) identifiers_.Define(symbol, form, id);
    return id;
}

Long Authoring::DefineByKind(clsSWFAdmin& admin, const clsSymbolData& symbol, Long form,
                             Long frame) {
    switch (symbol.eType()) {
        case KindBitmap:
            return DefineBitmap(admin, symbol, frame);
        case KindText:
            return DefineText(admin, symbol, frame);
        case KindVector:
            return DefineVector(admin, symbol, form, frame);
        case KindSprite:
            DefineSpriteChildren(admin, *symbol.Property<clsPropertySprite>(), frame);
            return DefineSprite(admin, symbol, frame);
        case KindButton:
            DefineButtonStates(admin, *symbol.Property<clsPropertyButton>(), frame);
            return 0;
        case KindClass: {
            if (snapshot_ != nullptr) return 0;
            const Long id = GetNewClass(admin, *symbol.Property<clsPropertyClass>(), frame);
            AddExport(admin, symbol, id, frame);
            return id;
        }
        case KindLink:
            return DefineLink(admin, symbol, frame);
        default:
            return 0;
    }
}

void Authoring::DefineSpriteChildren(clsSWFAdmin& admin, const clsPropertySprite& sprite,
                                     Long frame) {
    for (const auto& layer : *sprite.colLayer) {
        const bool unseen = snapshot_ != nullptr && FramePlacement(*layer, 1).Empty();
        if (!layer->Visible(true) || unseen) continue;
        if (layer->SymbolData()->eType() == KindKoma)
            DefineKomas(admin, *layer, frame, 1);
        else
            EnsureDefined(admin, layer.get(), *layer->SymbolData(), frame);
    }
}

std::vector<Long> Authoring::DefineKomas(clsSWFAdmin& admin, const clsLayer& layer, Long frame,
                                         Long shown) {
    std::vector<Long> identifiers;
    const auto define = [&](const clsSymbolData& koma) {
        if (const Long id = EnsureDefined(admin, nullptr, koma, frame)) identifiers.push_back(id);
    };
    if (snapshot_ == nullptr)
        for (const auto& koma : *layer.SymbolData()->Property<clsPropertyKoma>()->colKomas)
            define(*koma);
    else if (const clsSymbolData* koma = KomaOn(layer, shown))
        define(*koma);
    return identifiers;
}

Long Authoring::DefineBitmap(clsSWFAdmin& admin, const clsSymbolData& symbol, Long frame) {
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
    const Long id = shape->ID;
    admin.AddTag(frame, std::move(shape), true);
    const bool exportPicture = mdlSWFTag::swfVersion() >= BitmapExportVersion;
    AddExport(admin, symbol, exportPicture ? bitmapID : id, frame);
    return id;
}

Long Authoring::DefineText(clsSWFAdmin& admin, const clsSymbolData& symbol, Long frame) {
    Long id = 0;
    if (admin.inFontAdmin && FollowsOutline(symbol)) {
        fitTexts_.push_back(FitTextSprite(symbol, *admin.inFontAdmin));
        const std::shared_ptr<clsSymbolData> sprite = fitTexts_.back();
        id = DefineSymbol(admin, *sprite, VectorForm::Plain, frame);
    } else {
        id = tamber::DefineText(admin, symbol, frame);
    }
    AddExport(admin, symbol, id, frame);
    return id;
}

Long Authoring::DefineVector(clsSWFAdmin& admin, const clsSymbolData& symbol, Long form,
                             Long frame) {
    WarnOfFocus(symbol);
    const Long id = tamber::DefineVector({admin, movie_, frame, told_}, symbol, form);
    if (form == VectorForm::Clip && id != 0) AddExport(admin, symbol, id, frame);
    return id;
}

std::shared_ptr<clsSWFAdmin> Authoring::NewInner(const clsSWFAdmin& admin, Long width, Long height,
                                                 Long frameCount) {
    auto inner = std::make_shared<clsSWFAdmin>();
    inner->SetDimension(0, width, 0, height, 0);
    inner->FrameCount(frameCount);
    inner->Ver = mdlSWFTag::swfVersion();
    inner->FrameRate = admin.FrameRate;
    inner->colDefineObj(admin.colDefineObj());
    return inner;
}

Long Authoring::AddSprite(clsSWFAdmin& admin, const std::shared_ptr<clsSWFAdmin>& inner,
                          Long frame) {
    auto tag = std::make_shared<clsSWFTagDefineSprite>();
    tag->FrameCount = inner->FrameCount();
    tag->SaveTimeline = [inner] { inner->FramesSave(); };
    const Long id = inner->AddDefinition(tag);
    tag->ID = admin.DefineID = id;
    // The list holds the tag, which holds the timeline: it must not hold the list too.
    inner->colDefineObj(std::make_shared<clsSWFAdmin::DefinitionList>());
    for (auto& action : inner->colInitAction) {
        if (action->SpriteID < 0) action->SpriteID = id;
        admin.colInitAction.push_back(action);
    }
    inner->colInitAction.clear();
    admin.AddTag(frame, std::move(tag), true);
    admin.AddColInitAction(frame);
    return id;
}

Long Authoring::GetNewSprite(clsSWFAdmin& admin, const clsPropertySprite& sprite, Long frame) {
    const auto inner =
        NewInner(admin, sprite.Width, sprite.height,
                 std::clamp(mdlSWFAuthoring::LastShownFrame(*sprite.colLayer), 1, MaxFrames));
    WriteTimeline({*inner, *sprite.colLayer, OriginOf(sprite), frame});
    return AddSprite(admin, inner, frame);
}

Long Authoring::GetNewSpriteEdit(clsSWFAdmin& admin, const clsPropertySprite& sprite, Long frame) {
    const auto inner = NewInner(admin, sprite.Width, sprite.height, 1);
    WriteTimeline({*inner, *sprite.colLayer, OriginOf(sprite), frame});
    return AddSprite(admin, inner, frame);
}

Long Authoring::DefineSprite(clsSWFAdmin& admin, const clsSymbolData& symbol, Long frame) {
    const clsPropertySprite& sprite = *symbol.Property<clsPropertySprite>();
    const Long id = snapshot_ == nullptr ? GetNewSprite(admin, sprite, frame)
                                         : GetNewSpriteEdit(admin, sprite, frame);
    AddScalingGrid(admin, sprite, id, frame);
    AddExport(admin, symbol, id, frame);
    return id;
}

Long Authoring::GetNewClass(clsSWFAdmin& admin, const clsPropertyClass& record, Long frame) {
    const auto inner = NewInner(admin, 0, 0, 1);
    Scripts.CompileClass(*inner, record);
    return AddSprite(admin, inner, frame);
}

Long Authoring::DefineLink(clsSWFAdmin& admin, const clsSymbolData& symbol, Long frame) {
    const auto& link = *symbol.Property<clsPropertyLinkSymbol>();
    if (mdlSWFTag::swfVersion() < LinkVersion) return 0;
    admin.AddTag(frame, admin.GetNewImport(link.URL, link.SymbolName), true);
    const Long id = admin.DefineID;
    if (link.eTypeEx() != KindClass || mdlSWFTag::swfVersion() < InitClipVersion) return id;
    Scripts.CompileClassLinks(admin, link.SymbolName, id);
    admin.AddColInitAction(frame);
    return id;
}

ButtonCharacters Authoring::DefineButtonStates(clsSWFAdmin& admin, const clsPropertyButton& button,
                                               Long frame) {
    const auto define = [&](const std::shared_ptr<clsSymbolData>& state) {
        if (!state) return Long{0};
        const Long id = EnsureDefined(admin, nullptr, *state, frame);
        admin.IncPlaceCount(id, 1);
        return id;
    };
    ButtonCharacters characters;
    characters.HitTest = DefineHitArea(admin, button, frame);
    characters.Down = define(button.DownSymbol());
    characters.Over = define(button.OverSymbol());
    characters.Up = define(button.UpSymbol());
    // A picture is its own hit area.
    if (characters.HitTest == 0) characters.HitTest = characters.Up;
    return characters;
}

/// The button's own hit area, or the one that is made for it; null where it needs none.
const clsSymbolData* Authoring::HitAreaOf(const clsPropertyButton& button) {
    if (const auto own = button.HitTestSymbol()) return own.get();
    const auto up = button.UpSymbol();
    if (!up) return nullptr;
    const Long kind = up->eTypeEx();
    if (kind != KindText && kind != KindVector && kind != KindSprite) return nullptr;
    const auto [made, isNew] = hitAreas_.try_emplace(&button);
    if (isNew) made->second = NewHitRect(*up);
    return made->second.get();
}

/// 0 where the button has no hit area and needs none made.
Long Authoring::DefineHitArea(clsSWFAdmin& admin, const clsPropertyButton& button, Long frame) {
    const clsSymbolData* area = HitAreaOf(button);
    if (area == nullptr) return 0;
    const Long id = EnsureDefined(admin, nullptr, *area, frame);
    admin.IncPlaceCount(id, 1);
    return id;
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

}  // namespace tamber

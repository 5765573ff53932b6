#include "swf/authoring/SymbolDefiner.h"

#include "document/Project.h"
#include "document/elements/SymbolKinds.h"
#include "document/elements/clsObjVector.h"
#include "document/records/clsPropertyBmp.h"
#include "document/records/clsPropertyLinkSymbol.h"
#include "document/records/clsPropertyVector.h"
#include "script/InitBlock.h"
#include "swf/authoring/BitmapDefinition.h"
#include "swf/authoring/FitText.h"
#include "swf/authoring/SpriteDefinition.h"
#include "swf/authoring/TextDefinition.h"
#include "swf/authoring/VectorDefinition.h"
#include "swf/tags/clsSWFTagExport.h"

namespace tamber {

namespace {

/// Version of the movie from which a picture itself is exported, and not the shape that shows it.
constexpr Long BitmapExportVersion = 8;

/// Pixels of a video whose file tells none.
constexpr Long UsualVideoWidth = 320;
constexpr Long UsualVideoHeight = 240;

}  // namespace

bool SymbolDefiner::HasCharacter(const clsSymbolData& symbol, Long version) {
    switch (symbol.eType()) {
        case KindBitmap:
        case KindText:
        case KindSprite:
        case KindClass:
            return true;
        case KindVector:
            return HasShapes(*symbol.Property<clsPropertyVector>());
        case KindMovieEmp:
            return version >= MovieVersion;
        case KindLink:
            return version >= LinkVersion;
        default:
            return false;
    }
}

Long SymbolDefiner::EnsureDefined(clsSWFAdmin& admin, const clsLayer* layer,
                                  const clsSymbolData& symbol, Long frame) {
    Long form = VectorForm::Plain;
    if (const auto* drawing = symbol.Property<clsPropertyVector>()) {
        const bool several = drawing->MorphSymbol() || drawing->blDivide;
        if (layer == nullptr && several) form = VectorForm::MorphStart;
        if (layer != nullptr && layer->ClippingDepth != 0) form = VectorForm::Clip;
    }
    return EnsureForm(admin, symbol, form, frame);
}

Long SymbolDefiner::EnsureForm(clsSWFAdmin& admin, const clsSymbolData& symbol, Long form,
                               Long frame) {
    const Long known = build_.Identifiers.IdentifierOf(symbol, form);
    return known != 0 ? known : DefineSymbol(admin, symbol, form, frame);
}

Long SymbolDefiner::DefineSymbol(clsSWFAdmin& admin, const clsSymbolData& symbol, Long form,
                                 Long frame) {
    if (nesting_ > DeepestNesting) return 0;
    ++nesting_;
    const Long id = DefineByKind(admin, symbol, form, frame);
    --nesting_;
    if (id != 0) build_.Identifiers.Define(symbol, form, id);
    return id;
}

Long SymbolDefiner::DefineByKind(clsSWFAdmin& admin, const clsSymbolData& symbol, Long form,
                                 Long frame) {
    switch (symbol.eType()) {
        case KindBitmap:
            return DefineBitmap(admin, symbol, frame);
        case KindText:
            return DefineText(admin, symbol, frame);
        case KindVector:
            return DefineVector(admin, symbol, form, frame);
        case KindSprite:
            return DefineSprite(admin, symbol, frame);
        case KindMovie:
            return writer_.HasScripts() ? 0 : DefineVideoPlace(admin, symbol, frame);
        case KindMovieEmp:
            return DefineVideoPlace(admin, symbol, frame);
        case KindButton:
            DefineButtonStates(admin, *symbol.Property<clsPropertyButton>(), frame);
            return 0;
        case KindClass: {
            if (!writer_.HasScripts()) return 0;
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

std::vector<Long> SymbolDefiner::DefineKomas(clsSWFAdmin& admin, const clsLayer& layer, bool isMain,
                                             Long frame) {
    std::vector<Long> identifiers;
    for (const clsSymbolData* picture : writer_.PicturesOf(layer, isMain))
        if (const Long id = EnsureDefined(admin, nullptr, *picture, frame))
            identifiers.push_back(id);
    return identifiers;
}

Long SymbolDefiner::DefineBitmap(clsSWFAdmin& admin, const clsSymbolData& symbol, Long frame) {
    const BitmapCharacters made =
        tamber::DefineBitmap(admin, *symbol.Property<clsPropertyBmp>(), frame);
    const bool exportPicture = build_.Version() >= BitmapExportVersion;
    AddExport(admin, symbol, exportPicture ? made.Bitmap : made.Shape, frame);
    return made.Shape;
}

Long SymbolDefiner::DefineText(clsSWFAdmin& admin, const clsSymbolData& symbol, Long frame) {
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

Long SymbolDefiner::DefineVector(clsSWFAdmin& admin, const clsSymbolData& symbol, Long form,
                                 Long frame) {
    build_.Left.CheckGradients(symbol);
    const Long id = tamber::DefineVector({admin, build_.Movie, frame, build_.Told}, symbol, form);
    if (form == VectorForm::Clip && id != 0) AddExport(admin, symbol, id, frame);
    return id;
}

ShownCharacter SymbolDefiner::DefineDeformed(clsSWFAdmin& admin, const clsLayer& layer,
                                             const clsLayerObject& start, const clsLayerObject* end,
                                             Long frame) {
    const auto* from = start.ObjectAs<clsObjVector>();
    const auto* to = end != nullptr ? end->ObjectAs<clsObjVector>() : nullptr;
    const clsSymbolData& symbol = *layer.SymbolData();
    const DeformedVector deformed = DeformSymbol(symbol, from, to);
    auto& own = *deformed.Start->Property<clsPropertyVector>();
    const bool wanted = symbol.Property<clsPropertyVector>()->blDivide ||
                        (from != nullptr && from->blDivide) || (to != nullptr && to->blDivide);
    own.blDivide = wanted && layer.DepthCnt(true) == own.ShapeCount();
    const bool masks = layer.ClippingDepth != 0;
    build_.Left.CheckGradients(symbol);
    const Long last =
        tamber::DefineVector({admin, build_.Movie, frame, build_.Told}, *deformed.Start,
                             masks ? VectorForm::Clip : VectorForm::Plain);
    const Long count = own.blDivide && !masks ? own.ShapeCount() : 1;
    return {last + 1 - count, count};
}

void SymbolDefiner::DefineSpriteChildren(clsSWFAdmin& admin, const clsPropertySprite& sprite,
                                         Long frame) {
    for (const auto& layer : *sprite.colLayer) {
        if (!layer->Visible(true) || !writer_.Shows(*layer)) continue;
        if (layer->SymbolData()->eType() == KindKoma)
            DefineKomas(admin, *layer, false, frame);
        else
            EnsureDefined(admin, layer.get(), *layer->SymbolData(), frame);
    }
}

Long SymbolDefiner::DefineSprite(clsSWFAdmin& admin, const clsSymbolData& symbol, Long frame) {
    const clsPropertySprite& sprite = *symbol.Property<clsPropertySprite>();
    DefineSpriteChildren(admin, sprite, frame);
    const Long id = writer_.GetNewSprite(admin, sprite, frame);
    AddScalingGrid(admin, sprite, id, frame);
    AddExport(admin, symbol, id, frame);
    return id;
}

Long SymbolDefiner::GetNewClass(clsSWFAdmin& admin, const clsPropertyClass& record, Long frame) {
    const auto inner = NewInner(admin, 0, 0, 1);
    build_.Scripts.CompileClass(*inner, record);
    return AddSprite(admin, inner, frame);
}

Long SymbolDefiner::DefineVideoPlace(clsSWFAdmin& admin, const clsSymbolData& symbol, Long frame) {
    if (build_.Version() < MovieVersion) return 0;
    const bool isSized = symbol.PixelWidth() > 0 && symbol.PixelHeight() > 0;
    const auto tag = isSized || symbol.eType() == KindMovieEmp
                         ? admin.GetNewVideoStreamEmp(symbol.PixelWidth(), symbol.PixelHeight())
                         : admin.GetNewVideoStreamEmp(UsualVideoWidth, UsualVideoHeight);
    admin.AddTag(frame, tag, true);
    return tag->ID;
}

Long SymbolDefiner::DefineLink(clsSWFAdmin& admin, const clsSymbolData& symbol, Long frame) {
    const auto& link = *symbol.Property<clsPropertyLinkSymbol>();
    if (build_.Version() < LinkVersion) return 0;
    admin.AddTag(frame, admin.GetNewImport(link.URL, link.SymbolName), true);
    const Long id = admin.DefineID;
    if (link.eTypeEx() != KindClass || build_.Version() < InitClipVersion) return id;
    build_.Scripts.CompileClassLinks(admin, link.SymbolName, id);
    admin.AddColInitAction(frame);
    return id;
}

Long SymbolDefiner::DefineButton(clsSWFAdmin& admin, const clsLayer& layer, Long depth, Long frame,
                                 Long stateFrame) {
    build_.Left.CheckStates(layer);
    const auto& button = *layer.SymbolData()->Property<clsPropertyButton>();
    const auto tag =
        GetNewButton(admin, button, DefineButtonStates(admin, button, stateFrame), depth);
    if (writer_.HasScripts()) tag->Actions = build_.Scripts.ButtonActions(layer);
    build_.Movie.AddTag(frame, tag, true);
    if (button.bl9Scale && build_.Version() >= ScalingGridVersion)
        build_.Movie.AddTag(frame,
                            admin.GetNewScalingGrid(tag->ID, button.GridLeft, button.GridRight,
                                                    button.GridTop, button.GridBottom),
                            true);
    return tag->ID;
}

ButtonCharacters SymbolDefiner::DefineButtonStates(clsSWFAdmin& admin,
                                                   const clsPropertyButton& button, Long frame) {
    ButtonCharacters characters;
    characters.HitTest = DefineState(admin, HitAreaOf(button), frame);
    characters.Down = DefineState(admin, button.DownSymbol().get(), frame);
    characters.Over = DefineState(admin, button.OverSymbol().get(), frame);
    characters.Up = DefineState(admin, button.UpSymbol().get(), frame);
    // A picture is its own hit area.
    if (characters.HitTest == 0) characters.HitTest = characters.Up;
    return characters;
}

Long SymbolDefiner::DefineState(clsSWFAdmin& admin, const clsSymbolData* state, Long frame) {
    if (state == nullptr) return 0;
    const Long id = EnsureDefined(admin, nullptr, *state, frame);
    admin.IncPlaceCount(id, 1);
    return id;
}

/// The button's own hit area, or the one that is made for it; null where it needs none.
const clsSymbolData* SymbolDefiner::HitAreaOf(const clsPropertyButton& button) {
    if (const auto own = button.HitTestSymbol()) return own.get();
    const auto up = button.UpSymbol();
    if (!up) return nullptr;
    const Long kind = up->eTypeEx();
    if (kind != KindText && kind != KindVector && kind != KindSprite) return nullptr;
    const auto [made, isNew] = hitAreas_.try_emplace(&button);
    if (isNew) made->second = NewHitRect(*up);
    return made->second.get();
}

void SymbolDefiner::AddExport(clsSWFAdmin& admin, const clsSymbolData& symbol, Long id,
                              Long frame) {
    if (!symbol.blExport || symbol.ExportName().empty()) return;
    auto tag = std::make_shared<clsSWFTagExport>();
    tag->AddSymbol(id, symbol.ExportName());
    admin.AddTag(frame, std::move(tag), true);
    admin.IncPlaceCount(id, 1);
}

}  // namespace tamber

#include "swf/authoring/MovieTimelineWriter.h"

#include <algorithm>

#include "document/elements/SymbolKinds.h"
#include "document/elements/clsObjBackGround.h"
#include "document/elements/clsObjFrameAction.h"
#include "document/elements/clsObjFrameLabel.h"
#include "document/records/clsPropertyKoma.h"
#include "platform/UserInterface.h"
#include "swf/authoring/LayerPlacement.h"
#include "swf/authoring/MovieLimits.h"
#include "swf/authoring/SpriteDefinition.h"

namespace tamber {

namespace {

bool IsEverSeen(const clsLayer& layer) {
    return std::any_of(layer.colObject.begin(), layer.colObject.end(),
                       [](const auto& object) { return object->blVisible; });
}

/// Whether a symbol goes into a movie for its name, though nothing may place it.
bool IsExported(const clsSymbolData& symbol) {
    return symbol.blExportEx() && symbol.eType() != KindBackGround;
}

}  // namespace

void MovieTimelineWriter::WriteMovie() {
    CollectClassLinks();
    PreDefineFrameOne();
    if (request_.blExports)
        DefineExports(request_.blExportsInFrameTwo ? 2 : build_.Movie.FrameCount());
    WriteTimeline({build_.Movie, *request_.Layers, {}});
}

void MovieTimelineWriter::ShowProgress(Long done, Long total) const {
    if (request_.blProgress) CurrentUserInterface().Progress(u"", done, total);
}

void MovieTimelineWriter::CollectClassLinks() {
    for (const auto& symbol : *request_.Library)
        if (symbol->eType() == KindSprite && symbol->blExportEx() && !symbol->LinkClassName.empty())
            build_.Scripts.colClassLinks[symbol->LinkClassName].push_back(symbol->ExportName());
}

void MovieTimelineWriter::PreDefineFrameOne() {
    for (const auto& layer : *request_.Layers) {
        if (!layer->Visible(true) || layer->ObjectCount() == 0) continue;
        if (layer->Object(1)->StartFrame() != 1) continue;
        const clsSymbolData& symbol = *layer->SymbolData();
        if (symbol.eType() != KindKoma) {
            definer_.EnsureDefined(build_.Movie, layer.get(), symbol, 1);
            continue;
        }
        // The first that is anything to see, which others may come before.
        for (const clsSymbolData* picture : PicturesOf(*layer, true))
            if (definer_.EnsureDefined(build_.Movie, nullptr, *picture, 1) != 0) break;
    }
}

void MovieTimelineWriter::DefineExports(Long mode) {
    const auto define = [&](bool classes, bool onTop) {
        for (const auto& symbol : *request_.Library)
            if (IsExported(*symbol) && symbol->blExportTop == onTop &&
                (symbol->eTypeEx() == KindClass) == classes)
                DefineExport(*symbol, onTop ? 1 : std::min(mode, 2));
    };
    // A part is defined once: those of what stands in frame 1 come before the late ones take them.
    for (const bool classes : {false, true})
        for (const bool onTop : {true, false}) define(classes, onTop);
}

void MovieTimelineWriter::DefineExport(const clsSymbolData& symbol, Long frame) {
    if (KindOf(symbol.eType()).blLacksExport)
        build_.Left.LeaveOutExport(symbol);
    else
        definer_.EnsureForm(build_.Movie, symbol,
                            symbol.eType() == KindVector ? VectorForm::Clip : VectorForm::Plain,
                            frame);
}

Long MovieTimelineWriter::GetNewSprite(clsSWFAdmin& admin, const clsPropertySprite& sprite,
                                       Long frame) {
    const auto inner =
        NewInner(admin, sprite.Width, sprite.height,
                 std::clamp(mdlSWFAuthoring::LastShownFrame(*sprite.colLayer), 1, MaxFrames));
    WriteTimeline({*inner, *sprite.colLayer, OriginOf(sprite), frame});
    return AddSprite(admin, inner, frame);
}

std::vector<const clsSymbolData*> MovieTimelineWriter::PicturesOf(const clsLayer& layer,
                                                                  bool /*isMain*/) const {
    std::vector<const clsSymbolData*> pictures;
    for (const auto& koma : *layer.SymbolData()->Property<clsPropertyKoma>()->colKomas)
        pictures.push_back(koma.get());
    return pictures;
}

/// What is never seen takes no frame.
bool MovieTimelineWriter::IsWalked(const Timeline& timeline, Long index, Long /*depth*/,
                                   Long /*depths*/) const {
    return IsEverSeen(*timeline.Layers(index));
}

Long MovieTimelineWriter::ButtonFrame(const clsLayer& layer) const {
    return layer.Object(1)->StartFrame();
}

void MovieTimelineWriter::Place(const Timeline& timeline, Long index, const LayerPlace& place,
                                LayerCharacters& characters) {
    LayerPlacement(timeline.Admin, *timeline.Layers(index), place, characters).Run();
}

void MovieTimelineWriter::WriteUnplaced(const Timeline& timeline, const clsLayer& layer) {
    const Long kind = layer.SymbolData()->eType();
    if (kind == KindBackGround) WriteBackground(timeline, layer);
    if (kind == KindFrameLabel) WriteLabels(timeline, layer);
    if (kind == KindSound) build_.Left.LeaveOut(layer);
    if (kind == KindFrameAction) WriteFrameActions(timeline, layer);
}

void MovieTimelineWriter::WriteBackground(const Timeline& timeline, const clsLayer& layer) {
    if (layer.ObjectCount() == 0 || !timeline.IsMain()) return;
    if (const auto* back = layer.Object(1)->ObjectAs<clsObjBackGround>())
        timeline.Admin.BackGroundColor = back->BackColor();
}

void MovieTimelineWriter::WriteFrameActions(const Timeline& timeline, const clsLayer& layer) {
    for (const auto& object : layer.colObject) {
        const auto* action = object->ObjectAs<clsObjFrameAction>();
        if (!object->blVisible || action == nullptr) continue;
        const String script = action->inScript.Script(build_.Version());
        if (!script.empty())
            build_.Scripts.CompileFrameAction(timeline.Admin, timeline.IsMain(),
                                              object->StartFrame(), script);
    }
}

void MovieTimelineWriter::WriteLabels(const Timeline& timeline, const clsLayer& layer) {
    for (const auto& object : layer.colObject) {
        const auto* label = object->ObjectAs<clsObjFrameLabel>();
        if (!object->blVisible || label == nullptr) continue;
        const bool anchor = timeline.IsMain() && label->blAnchor;
        timeline.Admin.SetFrameLabel(object->StartFrame(), label->LabelName, anchor);
        if (anchor && request_.AnchorLabels != nullptr)
            request_.AnchorLabels->append(u"\t").append(label->LabelName);
    }
}

}  // namespace tamber

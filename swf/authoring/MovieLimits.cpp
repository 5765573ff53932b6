#include "swf/authoring/MovieLimits.h"

#include "document/edit/SymbolReferences.h"
#include "document/elements/SymbolKinds.h"
#include "document/records/clsPropertySprite.h"
#include "platform/text.h"
#include "swf/authoring/LayerCourse.h"
#include "swf/authoring/TimelineRows.h"
#include "swf/mdlSWFTag.h"

namespace tamber {

namespace {

bool FitsFrames(const clsLayerObject& object) {
    return object.StartFrame() <= MaxFrames && object.DispCount() <= MaxFrames &&
           object.endFrame() <= MaxFrames;
}

/// Key frames that hide nothing count too: they may be shown at any time.
bool FitsFrames(const Collection<clsLayer>& layers) {
    for (const auto& layer : layers) {
        if (!layer->Visible(true)) continue;
        for (const auto& object : layer->colObject)
            if (!FitsFrames(*object)) return false;
    }
    return true;
}

std::int64_t PlacementsOf(const clsLayer& layer) {
    const LayerCourse course(layer);
    const bool koma = course.FramesAPicture() != 0;
    std::int64_t placements = 0;
    for (Long index = 1; index <= layer.ObjectCount(); ++index)
        placements += koma || layer.Object(index)->blTween ? course.SpanOf(index) : 1;
    return placements;
}

using LayerTables = std::vector<const Collection<clsLayer>*>;

/// The timelines that are generated: the movie's and those of the sprites that it shows or exports.
class GeneratedTimelines {
public:
    explicit GeneratedTimelines(const MovieRequest& request) {
        Take(*request.Layers);
        if (request.blExports)
            for (const auto& symbol : *request.Library)
                if (symbol->blExportEx()) open_.push_back(symbol.get());
        while (!open_.empty()) {
            const clsSymbolData* symbol = open_.back();
            open_.pop_back();
            if (symbol != nullptr && known_.insert(symbol).second) TakePartsOf(*symbol);
        }
    }

    const LayerTables& Tables() const { return tables_; }

private:
    void Take(const Collection<clsLayer>& layers) {
        tables_.push_back(&layers);
        for (const auto& layer : layers)
            if (layer->Visible(true)) open_.push_back(layer->SymbolData().get());
    }
    void TakePartsOf(const clsSymbolData& symbol) {
        if (const auto* sprite = symbol.Property<clsPropertySprite>())
            Take(*sprite->colLayer);
        else
            for (const auto& part : ReferencesOf(symbol)) open_.push_back(part.get());
    }

    LayerTables tables_;
    SymbolSet known_;
    /// What is yet to be looked through.
    std::vector<const clsSymbolData*> open_;
};

String TimelineFault(const MovieRequest& request) {
    std::int64_t placements = 0;
    const GeneratedTimelines timelines(request);
    for (const auto* layers : timelines.Tables()) {
        if (!FitsFrames(*layers))
            return u"フレーム数が多すぎます。\r\nSWFファイルは" + ToText(MaxFrames) +
                   u"フレームまでです。";
        std::int64_t depths = 0;
        for (const Long row : WalkedRows(*layers, request.blTopToBottom)) {
            const clsLayer& layer = *(*layers)(row);
            if (!KindOf(layer.SymbolData()->eType()).blTakesDepths || layer.DepthCnt(true) == 0)
                continue;
            depths += layer.DepthCnt(true);
            placements += PlacementsOf(layer);
        }
        if (depths > MaxDepths)
            return u"レイヤー数が多すぎます。\r\n表示できる深さは" + ToText(MaxDepths) +
                   u"までです。";
    }
    if (placements > MaxPlacements)
        return u"トゥイーンのフレームの合計が多すぎます。\r\n" + ToGroupedText(MaxPlacements) +
               u"までです。";
    return {};
}

}  // namespace

String MovieLimitFault(const MovieRequest& request) {
    if (request.Version < LowestMovieVersion || request.Version > HighestMovieVersion)
        return u"SWF" + ToText(request.Version) + u"の生成には対応していません。";
    if (request.Width <= 0 || request.Height <= 0 || request.Width > mdlSWFTag::MaxField ||
        request.Height > mdlSWFTag::MaxField)
        return u"ステージの大きさが範囲外です。";
    if (!(request.FrameRate >= LowestFrameRate && request.FrameRate < FrameRateEnd))
        return u"フレームレートが範囲外です。";
    return TimelineFault(request);
}

}  // namespace tamber

#include "swf/authoring/MovieLimits.h"

#include "document/records/clsPropertySprite.h"
#include "platform/text.h"
#include "swf/authoring/LayerCharacter.h"
#include "swf/mdlSWFTag.h"

namespace tamber {

namespace {

bool FitsFrames(const clsLayerObject& object) {
    return object.StartFrame() <= MaxFrames && object.DispCount() <= MaxFrames &&
           object.endFrame() <= MaxFrames;
}

/// Key frames that hide nothing count too: they may be shown at any time.
bool FitsFrames(const Collection<clsLayer>& layers) {
    for (const auto& layer : layers)
        for (const auto& object : layer->colObject)
            if (!FitsFrames(*object)) return false;
    return true;
}

std::int64_t DepthsOf(const Collection<clsLayer>& layers) {
    std::int64_t depths = 0;
    for (const auto& layer : layers)
        if (layer->Visible(true)) depths += layer->DepthCnt(true);
    return depths;
}

std::int64_t PlacementsOf(const clsLayer& layer) {
    const bool koma = layer.SymbolData()->eTypeEx() == KindKoma;
    std::int64_t placements = 0;
    for (Long index = 1; index <= layer.ObjectCount(); ++index)
        placements += koma || layer.Object(index)->blTween ? SpanOf(layer, index) : 1;
    return placements;
}

std::int64_t PlacementsOf(const Collection<clsLayer>& layers) {
    std::int64_t placements = 0;
    for (const auto& layer : layers)
        if (layer->Visible(true) && layer->DepthCnt(true) > 0) placements += PlacementsOf(*layer);
    return placements;
}

String TimelineFault(const MovieRequest& request) {
    std::vector<const Collection<clsLayer>*> timelines{request.Layers};
    for (const auto& symbol : *request.Library)
        if (const auto* sprite = symbol->Property<clsPropertySprite>())
            timelines.push_back(sprite->colLayer.get());
    std::int64_t placements = 0;
    for (const auto* layers : timelines) {
        if (!FitsFrames(*layers))
            return u"フレーム数が多すぎます。\r\nSWFファイルは" + ToText(MaxFrames) +
                   u"フレームまでです。";
        if (DepthsOf(*layers) > MaxDepths)
            return u"レイヤー数が多すぎます。\r\n表示できる深さは" + ToText(MaxDepths) +
                   u"までです。";
        placements += PlacementsOf(*layers);
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

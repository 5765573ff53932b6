#pragma once

#include "swf/authoring/TimelineWalk.h"
#include "swf/authoring/mdlSWFAuthoring.h"

namespace tamber {

/// Writes a whole movie: definitions in their frames, exports, and timelines with placements,
/// tweens, labels and scripts.
class MovieTimelineWriter : public TimelineWalk {
public:
    MovieTimelineWriter(MovieBuild& build, const MovieRequest& request)
        : TimelineWalk(build, request.blTopToBottom), request_(request) {}

    void WriteMovie();

    Long LateFrame() const override { return 2; }
    Long GetNewSprite(clsSWFAdmin& admin, const clsPropertySprite& sprite, Long frame) override;
    bool Shows(const clsLayer& /*layer*/) const override { return true; }
    std::vector<const clsSymbolData*> PicturesOf(const clsLayer& layer, bool isMain) const override;
    bool HasScripts() const override { return true; }

protected:
    bool IsWalked(const Timeline& timeline, Long index, Long depth, Long depths) const override;
    void WriteUnplaced(const Timeline& timeline, const clsLayer& layer) override;
    void Place(const Timeline& timeline, Long index, const LayerPlace& place,
               LayerCharacters& characters) override;
    Long ButtonFrame(const clsLayer& layer) const override;
    void ShowProgress(Long done, Long total) const override;

private:
    /// Notes which exported sprites belong to which class.
    void CollectClassLinks();
    void PreDefineFrameOne();
    void DefineExports(Long mode);
    void DefineExport(const clsSymbolData& symbol, Long frame);
    void WriteBackground(const Timeline& timeline, const clsLayer& layer);
    void WriteLabels(const Timeline& timeline, const clsLayer& layer);
    void WriteFrameActions(const Timeline& timeline, const clsLayer& layer);

    const MovieRequest& request_;
};

}  // namespace tamber

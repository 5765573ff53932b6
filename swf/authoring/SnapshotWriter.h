#pragma once

#include "swf/authoring/TimelineWalk.h"
#include "swf/authoring/mdlSWFAuthoring.h"

namespace tamber {

/// Puts what rows of a timeline show on one frame on frame 1: no scripts, labels or sounds, and of
/// sprites their first frame.
class SnapshotWriter : public TimelineWalk {
public:
    SnapshotWriter(MovieBuild& build, const SnapshotRequest& snapshot)
        : TimelineWalk(build, snapshot.blTopToBottom), snapshot_(snapshot) {}

    /// The result are the placements, each with its row and key frame.
    PlacedTags WriteFrameSnapshot();

    Long LateFrame() const override { return 1; }
    Long GetNewSprite(clsSWFAdmin& admin, const clsPropertySprite& sprite, Long frame) override {
        return GetNewSpriteEdit(admin, sprite, frame);
    }
    bool Shows(const clsLayer& layer) const override;
    /// The one that is seen.
    std::vector<const clsSymbolData*> PicturesOf(const clsLayer& layer, bool isMain) const override;
    bool HasScripts() const override { return false; }

protected:
    /// Of a video the place is shown.
    bool CanPlace(Long kind) const override {
        return kind == KindMovie || TimelineWalk::CanPlace(kind);
    }
    bool IsWalked(const Timeline& timeline, Long index, Long depth, Long depths) const override;
    void Place(const Timeline& timeline, Long index, const LayerPlace& place,
               LayerCharacters& characters) override;
    Long ButtonFrame(const clsLayer& /*layer*/) const override { return 1; }

private:
    /// A definition of the sprite's first frame.
    Long GetNewSpriteEdit(clsSWFAdmin& admin, const clsPropertySprite& sprite, Long frame);
    Long FrameOf(bool isMain) const { return isMain ? snapshot_.Frame : 1; }

    const SnapshotRequest& snapshot_;
    PlacedTags placed_;
};

}  // namespace tamber

#pragma once

#include "document/elements/SymbolKinds.h"
#include "swf/authoring/LayerCharacters.h"
#include "swf/authoring/LayerPlace.h"
#include "swf/authoring/SymbolDefiner.h"

namespace tamber {

/// Walks the rows of timelines in the order of their depths, defines what they show, and leaves
/// its placing to the kinds of walk.
class TimelineWalk : public TimelineWriter {
public:
    /// `topToBottom`: the first layer of a table is the topmost one.
    TimelineWalk(MovieBuild& build, bool topToBottom)
        : build_(build), topToBottom_(topToBottom), definer_(build, *this) {}

    void WriteTimeline(const Timeline& timeline) override;

protected:
    /// Depth of the first row, from the top down and from the bottom up.
    static constexpr Long TopDepth = 16383;
    static constexpr Long BottomDepth = 257;

    /// A row with so many depths from `depth` on has something for the walk.
    virtual bool IsWalked(const Timeline& timeline, Long index, Long depth, Long depths) const = 0;
    /// Rows of the kind have something to place; others are told to be left out.
    virtual bool CanPlace(Long kind) const { return KindOf(kind).blPlaced; }
    /// Writes what of a row takes no depth.
    virtual void WriteUnplaced(const Timeline& /*timeline*/, const clsLayer& /*layer*/) {}
    virtual void Place(const Timeline& timeline, Long index, const LayerPlace& place,
                       LayerCharacters& characters) = 0;
    /// Frame of a timeline in which a layer's button is defined.
    virtual Long ButtonFrame(const clsLayer& layer) const = 0;
    virtual void ShowProgress(Long /*done*/, Long /*total*/) const {}

    MovieBuild& build_;
    bool topToBottom_;
    SymbolDefiner definer_;

private:
    void WriteLayer(const Timeline& timeline, Long index, Long& depth);
    void PlaceLayer(const Timeline& timeline, Long index, Long depth);
    void PlaceKomas(const Timeline& timeline, Long index, const LayerPlace& place);
    void PlaceDrawing(const Timeline& timeline, Long index, const LayerPlace& place, Long last);
    Long DefineLayer(const Timeline& timeline, const clsLayer& layer, Long depth);
};

}  // namespace tamber

#pragma once

#include "canvas/picture/Timeline.h"

namespace tamber {

/// A sprite, or a button in its up state: a timeline of its own.
class SpriteCharacter : public Character {
public:
    explicit SpriteCharacter(Timeline timeline)
        : timeline_(std::move(timeline)), nesting_(timeline_.Nesting() + 1) {}

    /// The inner box of nine that keeps the corners' size when the sprite is stretched; twips.
    void ScalingGrid(const PaintBox& inner) { grid_ = inner; }

    const Timeline& inTimeline() const { return timeline_; }
    void Draw(Painter& painter, const PaintState& state) const override;
    PaintBox Bounds(const PaintState& state) const override;
    Long Nesting() const override { return nesting_; }

private:
    void DrawByGrid(Painter& painter, const PaintState& state) const;

    Timeline timeline_;
    Long nesting_;
    PaintBox grid_;
};

}  // namespace tamber

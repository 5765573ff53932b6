#pragma once

#include "canvas/picture/Timeline.h"

namespace tamber {

/// A sprite, or a button in its up state: a timeline of its own.
class SpriteCharacter : public Character {
public:
    explicit SpriteCharacter(Timeline timeline) : timeline_(std::move(timeline)) {}

    const Timeline& inTimeline() const { return timeline_; }
    void Draw(Painter& painter, const PaintState& state) const override;
    PaintBox Bounds(const PaintState& state) const override;

private:
    Timeline timeline_;
};

}  // namespace tamber

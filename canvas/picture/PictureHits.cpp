#include "canvas/picture/PictureHits.h"

#include <algorithm>
#include <cmath>

#include "canvas/picture/Painter.h"
#include "canvas/picture/TimelineDrawing.h"

namespace tamber {

namespace {

/// Pixels of each side of the small picture around the place.
constexpr Long Side = 3;

}  // namespace

PictureHits::PictureHits(const PictureMovie& movie, Long frame, const PictureView& view, double x,
                         double y)
    : movie_(movie),
      stage_(StateOfStage(movie, frame, view)),
      shown_(ShownOf(movie.Main, stage_)),
      next_(shown_.size()),
      x_(std::floor(x) - Side / 2),
      y_(std::floor(y) - Side / 2) {}

std::optional<Long> PictureHits::Next() {
    while (next_ > 0) {
        const Placement& placement = *shown_[--next_];
        if (placement.ClipDepth != 0 || !Covers(placement) || IsHidden(next_)) continue;
        return placement.Depth;
    }
    return std::nullopt;
}

bool PictureHits::Covers(const Placement& placement) const {
    PaintState state = StateOf(placement, movie_.Main, stage_);
    if (!placement.Shown->Bounds(state).Meets({x_, y_, x_ + Side, y_ + Side})) return false;
    state.Matrix.x0 -= x_;
    state.Matrix.y0 -= y_;
    // Whatever is not wholly transparent can be taken hold of.
    state.Colors = {};
    Raster around(Side, Side);
    PaintCache cache;
    {
        Painter painter(around, {0, 0, Side, Side}, cache);
        placement.Shown->Draw(painter, state);
    }
    return std::any_of(around.Pixels().begin(), around.Pixels().end(),
                       [](std::uint32_t pixel) { return pixel != 0; });
}

bool PictureHits::IsHidden(std::size_t index) const {
    const Long depth = shown_[index]->Depth;
    for (std::size_t i = 0; i < index; ++i)
        if (shown_[i]->ClipDepth >= depth && !Covers(*shown_[i])) return true;
    return false;
}

}  // namespace tamber

#pragma once

#include <optional>

#include "canvas/picture/MoviePicture.h"

namespace tamber {

/// What a picture shows at a place, from the topmost down.
class PictureHits {
public:
    /// `x`, `y`: pixels of the view; what is drawn within a pixel of them counts. `frame` from 1.
    /// The movie and the view must outlive this.
    PictureHits(const PictureMovie& movie, Long frame, const PictureView& view, double x, double y);

    /// Depth of the next thing there; nothing when there is no more. Masks do not count, nor what
    /// they hide.
    std::optional<Long> Next();

private:
    bool Covers(const Placement& placement) const;
    bool IsHidden(std::size_t index) const;

    const PictureMovie& movie_;
    PaintState stage_;
    const DisplayList& shown_;
    std::size_t next_;
    double x_;
    double y_;
};

}  // namespace tamber

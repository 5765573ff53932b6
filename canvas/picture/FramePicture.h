#pragma once

#include "canvas/picture/MoviePicture.h"

namespace tamber {

/// The picture of a frame that is shown again and again, as an editor does: what did not change
/// since the last time is not drawn again, and a view that only moved is moved.
class FramePicture {
public:
    /// Brings the picture up to what a view shows of a frame, from 1.
    const Raster& Show(const std::shared_ptr<const PictureMovie>& movie, Long frame,
                       const PictureView& view);
    /// What the last `Show` drew anew, pixels.
    const std::vector<PaintBox>& Drawn() const { return drawn_; }

private:
    /// Something on the stage as it was drawn, and what it touched.
    struct Element {
        std::shared_ptr<const Placement> Placed;
        PaintBox Bounds;
    };

    bool CanMove(const PictureMovie& movie, const PictureView& view) const;
    void MoveBy(Long x, Long y);
    /// What of the elements differs from those drawn last.
    PaintBox Difference(const std::vector<Element>& elements, bool animate) const;
    void Draw(const PaintBox& box, const PaintState& state);

    std::shared_ptr<const PictureMovie> movie_;
    PictureView view_;
    Raster picture_;
    /// The lowest depth first.
    std::vector<Element> elements_;
    std::vector<PaintBox> drawn_;
    PaintCache cache_;
};

}  // namespace tamber

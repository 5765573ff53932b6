#pragma once

#include "canvas/picture/Character.h"
#include "canvas/picture/Raster.h"

namespace tamber {

/// A picture, decoded.
class BitmapCharacter : public Character, public std::enable_shared_from_this<BitmapCharacter> {
public:
    explicit BitmapCharacter(Raster pixels)
        : pixels_(std::move(pixels)), surface_(pixels_, pixels_.IsOpaque()) {}

    const Raster& Pixels() const { return pixels_; }
    cairo_surface_t* Surface() const { return surface_.get(); }
    /// The picture at half its size, each pixel the mean of four; made when it is first asked for.
    const std::shared_ptr<const BitmapCharacter>& Halved() const;
    void Draw(Painter& painter, const PaintState& state) const override;
    PaintBox Bounds(const PaintState& state) const override;

private:
    /// Twips.
    PaintBox Box() const;

    Raster pixels_;
    RasterSurface surface_;
    mutable std::shared_ptr<const BitmapCharacter> halved_;
};

}  // namespace tamber

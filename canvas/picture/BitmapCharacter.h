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
    void Draw(Painter& painter, const PaintState& state) const override;
    PaintBox Bounds(const PaintState& state) const override;

private:
    /// Twips.
    PaintBox Box() const;

    Raster pixels_;
    RasterSurface surface_;
};

}  // namespace tamber

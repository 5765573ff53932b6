#pragma once

#include <span>

#include "canvas/picture/PaintCache.h"
#include "canvas/picture/PaintState.h"
#include "canvas/picture/PictureFill.h"
#include "canvas/picture/PicturePath.h"
#include "canvas/picture/Raster.h"
#include "canvas/picture/Timeline.h"

namespace tamber {

/// Draws characters into a raster, over what is there.
class Painter {
public:
    /// What the raster is: the stage, or a part of it drawn apart, whose opacity can be blended.
    enum class Ground { Stage, Layer };

    /// `clip`: whole pixels of the raster outside of which nothing is drawn.
    Painter(Raster& target, PaintBox clip, PaintCache& cache, Ground ground = Ground::Stage);
    ~Painter();
    Painter(const Painter&) = delete;
    Painter& operator=(const Painter&) = delete;

    /// Within its life only what lies within an outline is drawn; with `hard` each pixel wholly or
    /// not at all, so that neighbouring outlines leave no seam.
    class Clipping {
    public:
        Clipping(Painter& painter, const PicturePath& path, const PaintState& state,
                 bool hard = false);
        ~Clipping();
        Clipping(const Clipping&) = delete;
        Clipping& operator=(const Clipping&) = delete;

    private:
        cairo_t* context_;
    };

    /// What a timeline shows, with what clips and blends it.
    void Draw(const Timeline& timeline, const PaintState& state);
    void Fill(const PicturePath& path, const PictureFill& fill, const PaintState& state,
              cairo_fill_rule_t rule);
    /// A line is at least as wide as a pixel of the stage.
    void Stroke(const PicturePath& path, const PictureLine& line, const PaintState& state);
    /// The black outline of a box, one pixel wide at any scale, along whole pixels.
    void DrawBox(const PaintBox& box, const PaintState& state);

private:
    using Range = std::span<const std::shared_ptr<const Placement>>;

    void DrawRange(const Timeline& timeline, Range range, const PaintState& parent);
    void DrawMasked(const Timeline& timeline, const Placement& mask, Range range,
                    const PaintState& parent);
    void DrawPlacement(const Placement& placement, const PaintState& state);
    /// Draws a placement apart and then, with its filters, into the picture.
    void DrawGroup(const Placement& placement, const PaintState& state);
    void BlendGroup(const FilteredRaster& group, Long x, Long y, BlendMode mode);
    PaintBox FilterSource(const Placement& placement, const PaintState& state) const;
    FilteredRaster DrawApart(const Placement& placement, const PaintState& state,
                             const PaintBox& box) const;
    FilteredRaster Filtered(const Placement& placement, const PaintState& state) const;
    FilteredRaster FilteredWithin(const Placement& placement, const PaintState& state,
                                  const PaintBox& box) const;
    FilteredRaster FilteredSmall(const Placement& placement, const PaintState& state,
                                 double factor) const;
    void SetColor(PictureColor color);
    bool SetSource(const PictureFill& fill, const PaintState& state);
    bool SetBitmapSource(const PictureFill& fill, const PaintState& state);
    bool SetGradientSource(const PictureFill& fill, const PaintState& state);

    Raster& target_;
    PaintBox clip_;
    PaintCache& cache_;
    Ground ground_;
    RasterSurface surface_;
    cairo_t* context_;
};

}  // namespace tamber

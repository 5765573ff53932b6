#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "platform/types.h"

struct _cairo_surface;

namespace tamber {

/// Pixels of premultiplied colours, 32 bits each: opacity in the upper byte, then red, green, blue.
/// Cairo draws into them where they lie.
class Raster {
public:
    /// No pixels at all.
    Raster() = default;
    /// Transparent. Sides below 1 give no pixels.
    Raster(Long width, Long height);

    bool IsEmpty() const { return pixels_.empty(); }
    Long Width() const { return width_; }
    Long Height() const { return height_; }
    std::uint32_t* Row(Long y) { return pixels_.data() + std::size_t(y) * std::size_t(width_); }
    const std::uint32_t* Row(Long y) const {
        return pixels_.data() + std::size_t(y) * std::size_t(width_);
    }
    std::vector<std::uint32_t>& Pixels() { return pixels_; }
    const std::vector<std::uint32_t>& Pixels() const { return pixels_; }
    /// All pixels are.
    bool IsOpaque() const;

private:
    Long width_ = 0;
    Long height_ = 0;
    std::vector<std::uint32_t> pixels_;
};

/// A surface of cairo over the pixels of a raster, which must stay where it is. What cairo drew is
/// in the pixels once the surface is gone or flushed.
class RasterSurface {
public:
    explicit RasterSurface(const Raster& raster) : RasterSurface(raster, false) {}
    /// `opaque`: all pixels are, which is drawn faster.
    RasterSurface(const Raster& raster, bool opaque);

    _cairo_surface* get() const { return surface_.get(); }

private:
    struct Destroy {
        void operator()(_cairo_surface* surface) const;
    };
    std::unique_ptr<_cairo_surface, Destroy> surface_;
};

}  // namespace tamber

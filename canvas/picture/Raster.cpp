#include "canvas/picture/Raster.h"

#include <cairo.h>

#include <algorithm>

namespace tamber {

Raster::Raster(Long width, Long height) {
    if (width < 1 || height < 1) return;
    width_ = width;
    height_ = height;
    pixels_.resize(std::size_t(width) * std::size_t(height));
}

bool Raster::IsOpaque() const {
    return std::all_of(pixels_.begin(), pixels_.end(),
                       [](std::uint32_t pixel) { return pixel >> 24 == 255; });
}

RasterSurface::RasterSurface(const Raster& raster, bool opaque)
    : surface_(cairo_image_surface_create_for_data(
          const_cast<unsigned char*>(reinterpret_cast<const unsigned char*>(raster.Row(0))),
          opaque ? CAIRO_FORMAT_RGB24 : CAIRO_FORMAT_ARGB32, raster.Width(), raster.Height(),
          raster.Width() * 4)) {}

void RasterSurface::Destroy::operator()(_cairo_surface* surface) const {
    cairo_surface_destroy(surface);
}

}  // namespace tamber

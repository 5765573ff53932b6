#include "canvas/picture/Raster.h"

#include <cairo.h>

namespace tamber {

Raster::Raster(Long width, Long height) {
    if (width < 1 || height < 1) return;
    width_ = width;
    height_ = height;
    pixels_.resize(std::size_t(width) * std::size_t(height));
}

RasterSurface::RasterSurface(const Raster& raster)
    : surface_(cairo_image_surface_create_for_data(
          const_cast<unsigned char*>(reinterpret_cast<const unsigned char*>(raster.Row(0))),
          CAIRO_FORMAT_ARGB32, raster.Width(), raster.Height(), raster.Width() * 4)) {}

void RasterSurface::Destroy::operator()(_cairo_surface* surface) const {
    cairo_surface_destroy(surface);
}

}  // namespace tamber

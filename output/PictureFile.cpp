#include "output/PictureFile.h"

#include <cairo.h>

namespace tamber {

namespace {

cairo_status_t Append(void* target, const unsigned char* data, unsigned int length) {
    auto& bytes = *static_cast<Bytes*>(target);
    bytes.insert(bytes.end(), data, data + length);
    return CAIRO_STATUS_SUCCESS;
}

}  // namespace

Bytes PngBytes(const Raster& picture) {
    Bytes bytes;
    const RasterSurface surface(picture);
    cairo_surface_write_to_png_stream(surface.get(), Append, &bytes);
    return bytes;
}

}  // namespace tamber

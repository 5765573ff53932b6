#include "canvas/picture/PaintCache.h"

#include <algorithm>

#include "canvas/picture/RasterColors.h"

namespace tamber {

std::shared_ptr<const BitmapCharacter> PaintCache::Tinted(
    const std::shared_ptr<const BitmapCharacter>& bitmap, const SwfColorTransform& colors) {
    if (colors == SwfColorTransform()) return bitmap;
    const auto known = std::find_if(tinted_.begin(), tinted_.end(), [&](const auto& tinted) {
        return tinted.From == bitmap && tinted.Colors == colors;
    });
    if (known != tinted_.end()) {
        tinted_.splice(tinted_.begin(), tinted_, known);
        return known->Bitmap;
    }
    Raster pixels = bitmap->Pixels();
    ApplyColors(pixels, colors);
    tinted_.push_front({bitmap, colors, std::make_shared<BitmapCharacter>(std::move(pixels))});
    DropTinted();
    return tinted_.front().Bitmap;
}

bool PaintCache::FilterKey::operator==(const FilterKey& other) const {
    const cairo_matrix_t& a = Matrix;
    const cairo_matrix_t& b = other.Matrix;
    return Shown == other.Shown && a.xx == b.xx && a.yx == b.yx && a.xy == b.xy && a.yy == b.yy &&
           a.x0 == b.x0 && a.y0 == b.y0 && Colors == other.Colors && Ratio == other.Ratio &&
           Frame == other.Frame && Scale == other.Scale && Filters == other.Filters;
}

void PaintCache::DropFiltered() {
    std::size_t pixels = 0;
    std::size_t count = 0;
    auto known = filtered_.begin();
    for (; known != filtered_.end(); ++known) {
        pixels += known->Raster->Pixels.Pixels().size();
        if (++count > MaxFiltered || (pixels > MaxFilteredPixels && count > 1)) break;
    }
    filtered_.erase(known, filtered_.end());
}

void PaintCache::DropTinted() {
    std::size_t pixels = 0;
    auto tinted = tinted_.begin();
    for (; tinted != tinted_.end(); ++tinted) {
        pixels += tinted->Bitmap->Pixels().Pixels().size();
        if (pixels > MaxTintedPixels && tinted != tinted_.begin()) break;
    }
    tinted_.erase(tinted, tinted_.end());
}

}  // namespace tamber

#pragma once

#include <list>

#include "canvas/picture/BitmapCharacter.h"
#include "canvas/picture/PlacedFilter.h"
#include "canvas/picture/RasterFilters.h"
#include "swf/SwfTypes.h"

namespace tamber {

/// What was worked out for one picture and serves for the next: pictures in other colours, and
/// what filters made. It holds what was used last, up to a number of pixels.
class PaintCache {
public:
    /// What a filtered raster depends on; places are those of the object's origin within its pixel.
    struct FilterKey {
        std::shared_ptr<const Character> Shown;
        cairo_matrix_t Matrix;
        SwfColorTransform Colors;
        std::vector<PlacedFilter> Filters;
        Long Ratio = 0;
        Long Frame = 0;
        double Scale = 1;
        String Name{};
        bool operator==(const FilterKey& other) const;
    };

    /// The filtered raster for a key, made by `make` when it is not known; its place is told from
    /// the pixel of the object's origin.
    template <class Make>
    std::shared_ptr<const FilteredRaster> Filtered(const FilterKey& key, Make make) {
        for (auto known = filtered_.begin(); known != filtered_.end(); ++known) {
            if (!(known->Key == key)) continue;
            filtered_.splice(filtered_.begin(), filtered_, known);
            return known->Raster;
        }
        auto made = std::make_shared<const FilteredRaster>(make());
        filtered_.push_front({key, made});
        DropFiltered();
        return made;
    }
    /// The picture in the colours that a transform makes of its own.
    std::shared_ptr<const BitmapCharacter> Tinted(
        const std::shared_ptr<const BitmapCharacter>& bitmap, const SwfColorTransform& colors);

private:
    struct TintedBitmap {
        std::shared_ptr<const BitmapCharacter> From;
        SwfColorTransform Colors;
        std::shared_ptr<const BitmapCharacter> Bitmap;
    };

    struct FilteredObject {
        FilterKey Key;
        std::shared_ptr<const FilteredRaster> Raster;
    };

    static constexpr std::size_t MaxTintedPixels = std::size_t{32} << 20;
    static constexpr std::size_t MaxFilteredPixels = std::size_t{8} << 20;
    /// So that looking for one stays fast.
    static constexpr std::size_t MaxFiltered = 256;

    void DropTinted();
    void DropFiltered();

    /// The one used last stands first.
    std::list<TintedBitmap> tinted_;
    std::list<FilteredObject> filtered_;
};

}  // namespace tamber

#pragma once

#include <list>

#include "canvas/picture/BitmapCharacter.h"
#include "canvas/picture/PlacedFilter.h"
#include "canvas/picture/RasterFilters.h"
#include "swf/SwfTypes.h"

namespace tamber {

/// What was worked out for one picture and serves for the next: pictures in other colours, and
/// what filters made. It holds what was used last, up to a number of bytes.
class PaintCache {
public:
    /// The picture in the colours that a transform makes of its own.
    std::shared_ptr<const BitmapCharacter> Tinted(
        const std::shared_ptr<const BitmapCharacter>& bitmap, const SwfColorTransform& colors);

private:
    struct TintedBitmap {
        std::shared_ptr<const BitmapCharacter> From;
        SwfColorTransform Colors;
        std::shared_ptr<const BitmapCharacter> Bitmap;
    };

    static constexpr std::size_t MaxTintedPixels = std::size_t{32} << 20;

    void DropTinted();

    /// The one used last stands first.
    std::list<TintedBitmap> tinted_;
};

}  // namespace tamber

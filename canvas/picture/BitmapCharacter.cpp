#include "canvas/picture/BitmapCharacter.h"

#include <algorithm>

#include "canvas/picture/Painter.h"
#include "platform/twips.h"

namespace tamber {

namespace {

/// Channel by channel, two of them at a time.
std::uint32_t MeanOf(std::uint32_t a, std::uint32_t b, std::uint32_t c, std::uint32_t d) {
    constexpr std::uint32_t Channels = 0x00FF00FF;
    constexpr std::uint32_t Half = 0x00020002;
    const auto sum = [&](int shift) {
        return (a >> shift & Channels) + (b >> shift & Channels) + (c >> shift & Channels) +
               (d >> shift & Channels) + Half;
    };
    return (sum(0) >> 2 & Channels) | (sum(8) >> 2 & Channels) << 8;
}

}  // namespace

const std::shared_ptr<const BitmapCharacter>& BitmapCharacter::Halved() const {
    if (halved_) return halved_;
    const Long width = pixels_.Width();
    const Long height = pixels_.Height();
    Raster half((width + 1) / 2, (height + 1) / 2);
    for (Long y = 0; y < half.Height(); ++y) {
        const std::uint32_t* upper = pixels_.Row(2 * y);
        const std::uint32_t* lower = pixels_.Row(std::min(2 * y + 1, height - 1));
        std::uint32_t* to = half.Row(y);
        for (Long x = 0; x < half.Width(); ++x) {
            const Long left = 2 * x;
            const Long right = std::min(left + 1, width - 1);
            to[x] = MeanOf(upper[left], upper[right], lower[left], lower[right]);
        }
    }
    halved_ = std::make_shared<const BitmapCharacter>(std::move(half));
    return halved_;
}

PaintBox BitmapCharacter::Box() const {
    return {0, 0, double(pixels_.Width()) * TwipsPerPixel,
            double(pixels_.Height()) * TwipsPerPixel};
}

PaintBox BitmapCharacter::Bounds(const PaintState& state) const {
    return Box().Under(state.Matrix);
}

void BitmapCharacter::Draw(Painter& painter, const PaintState& state) const {
    PictureFill fill;
    fill.What = PictureFill::Kind::Bitmap;
    fill.Matrix = {TwipsPerPixel, 0, 0, TwipsPerPixel, 0, 0};
    fill.Bitmap = shared_from_this();
    const PaintBox box = Box();
    painter.Fill(PicturePath::OfBox(box.Left, box.Top, box.Right, box.Bottom), fill, state,
                 CAIRO_FILL_RULE_EVEN_ODD);
}

}  // namespace tamber

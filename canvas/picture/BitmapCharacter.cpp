#include "canvas/picture/BitmapCharacter.h"

#include "canvas/picture/Painter.h"
#include "platform/twips.h"

namespace tamber {

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

#include "canvas/picture/PictureFill.h"

#include <algorithm>
#include <cmath>

namespace tamber {

namespace {

double Between(double from, double to, double ratio) {
    return from + (to - from) * ratio;
}

Byte Between(Byte from, Byte to, double ratio) {
    return static_cast<Byte>(std::lround(Between(double(from), double(to), ratio)));
}

PictureColor Between(PictureColor from, PictureColor to, double ratio) {
    return {Between(from.R, to.R, ratio), Between(from.G, to.G, ratio),
            Between(from.B, to.B, ratio), Between(from.A, to.A, ratio)};
}

cairo_matrix_t Between(const cairo_matrix_t& from, const cairo_matrix_t& to, double ratio) {
    return {Between(from.xx, to.xx, ratio), Between(from.yx, to.yx, ratio),
            Between(from.xy, to.xy, ratio), Between(from.yy, to.yy, ratio),
            Between(from.x0, to.x0, ratio), Between(from.y0, to.y0, ratio)};
}

}  // namespace

PictureFill Mix(const PictureFill& from, const PictureFill& to, double ratio) {
    PictureFill mixed = from;
    mixed.Color = Between(from.Color, to.Color, ratio);
    mixed.Matrix = Between(from.Matrix, to.Matrix, ratio);
    mixed.Focal = Between(from.Focal, to.Focal, ratio);
    for (std::size_t i = 0; i < std::min(from.Stops.size(), to.Stops.size()); ++i) {
        mixed.Stops[i].Ratio = Between(from.Stops[i].Ratio, to.Stops[i].Ratio, ratio);
        mixed.Stops[i].Color = Between(from.Stops[i].Color, to.Stops[i].Color, ratio);
    }
    return mixed;
}

PictureLine Mix(const PictureLine& from, const PictureLine& to, double ratio) {
    PictureLine mixed = from;
    mixed.Width = Between(from.Width, to.Width, ratio);
    mixed.Paint = Mix(from.Paint, to.Paint, ratio);
    return mixed;
}

}  // namespace tamber

#include "canvas/picture/MovieValues.h"

namespace tamber {

cairo_matrix_t ToCairo(const SwfMatrix& matrix) {
    constexpr double One = 65536;
    return {matrix.ScaleX / One, matrix.RotateSkew0 / One,  matrix.RotateSkew1 / One,
            matrix.ScaleY / One, double(matrix.TranslateX), double(matrix.TranslateY)};
}

PaintBox ToBox(const SwfRect& rect) {
    return {double(rect.xMin), double(rect.yMin), double(rect.xMax), double(rect.yMax)};
}

PictureColor ReadColor(SwfBits& bits, bool hasAlpha) {
    PictureColor color;
    for (Byte* part : {&color.R, &color.G, &color.B}) *part = static_cast<Byte>(bits.GetUI(1));
    if (hasAlpha) color.A = static_cast<Byte>(bits.GetUI(1));
    return color;
}

}  // namespace tamber

#include "canvas/picture/Character.h"

#include <algorithm>
#include <cmath>

namespace tamber {

void PaintBox::Add(const PaintBox& other) {
    if (other.IsEmpty()) return;
    if (IsEmpty()) {
        *this = other;
        return;
    }
    Left = std::min(Left, other.Left);
    Top = std::min(Top, other.Top);
    Right = std::max(Right, other.Right);
    Bottom = std::max(Bottom, other.Bottom);
}

void PaintBox::Grow(double by) {
    if (IsEmpty()) return;
    Left -= by;
    Top -= by;
    Right += by;
    Bottom += by;
}

PaintBox PaintBox::Cut(const PaintBox& other) const {
    return {std::max(Left, other.Left), std::max(Top, other.Top), std::min(Right, other.Right),
            std::min(Bottom, other.Bottom)};
}

PaintBox PaintBox::Outwards() const {
    return {std::floor(Left), std::floor(Top), std::ceil(Right), std::ceil(Bottom)};
}

PaintBox PaintBox::Under(const cairo_matrix_t& matrix) const {
    PaintBox box;
    if (IsEmpty()) return box;
    for (const double x : {Left, Right}) {
        for (const double y : {Top, Bottom}) {
            double outX = x;
            double outY = y;
            cairo_matrix_transform_point(&matrix, &outX, &outY);
            box.Add(outX, outY);
        }
    }
    return box;
}

}  // namespace tamber

#include "platform/CubicCut.h"

#include <algorithm>
#include <cmath>

namespace tamber {

namespace {

/// One coordinate of a cubic as a polynomial of its parameter.
struct Polynomial {
    Polynomial(double start, double control1, double control2, double end)
        : constant(start),
          linear(3 * (control1 - start)),
          square(3 * (start - 2 * control1 + control2)),
          cube(end - 3 * control2 + 3 * control1 - start) {}

    double At(double t) const { return ((cube * t + square) * t + linear) * t + constant; }
    double SlopeAt(double t) const { return (3 * cube * t + 2 * square) * t + linear; }

    double constant;
    double linear;
    double square;
    double cube;
};

/// Control point of the quadratic between two parameters: with the cubic's own ends, the one whose
/// deviation is the same on both sides of the middle.
double ControlOf(const Polynomial& curve, double from, double to) {
    return (curve.At(from) + curve.At(to)) / 2 +
           (curve.SlopeAt(from) - curve.SlopeAt(to)) * (to - from) / 4;
}

}  // namespace

std::vector<QuadraticPiece> CutCubic(FinePoint start, FinePoint control1, FinePoint control2,
                                     FinePoint end, double tolerance) {
    const Polynomial x(start.X, control1.X, control2.X, end.X);
    const Polynomial y(start.Y, control1.Y, control2.Y, end.Y);
    // That quadratic deviates from its cubic by cube * t * (t - 1/2) * (t - 1), which is at most
    // cube * sqrt(3) / 36; a piece of 1/n of the curve has 1/n^3 of its cube.
    const double deviation = std::hypot(x.cube, y.cube) * std::sqrt(3.0) / 36;
    const int count = std::max(1, static_cast<int>(std::ceil(std::cbrt(deviation / tolerance))));

    std::vector<QuadraticPiece> pieces(static_cast<std::size_t>(count));
    double from = 0;
    for (int i = 0; i < count; ++i) {
        const double to = static_cast<double>(i + 1) / count;
        pieces[static_cast<std::size_t>(i)] = {{ControlOf(x, from, to), ControlOf(y, from, to)},
                                               {x.At(to), y.At(to)}};
        from = to;
    }
    pieces.back().End = end;
    return pieces;
}

}  // namespace tamber

#pragma once

#include <vector>

namespace tamber {

/// A point of an outline before it is rounded.
struct FinePoint {
    double X = 0;
    double Y = 0;
};

/// A quadratic curve from where the one before it ended.
struct QuadraticPiece {
    FinePoint Control;
    FinePoint End;
};

/// Cuts a cubic curve into the fewest quadratics of equal parameter length that stay within
/// `tolerance` of it. The last piece ends on the very end of the cubic.
std::vector<QuadraticPiece> CutCubic(FinePoint start, FinePoint control1, FinePoint control2,
                                     FinePoint end, double tolerance);

}  // namespace tamber

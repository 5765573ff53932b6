#pragma once

#include "platform/types.h"

namespace tamber {

struct CurvePoint {
    double X = 0;
    double Y = 0;
};

/// A quadratic Bézier curve and its length along the way.
class QuadraticCurve {
public:
    QuadraticCurve(CurvePoint start, CurvePoint control, CurvePoint end);

    CurvePoint At(double u) const;
    /// Length from the start to parameter `u`, by Gauss-Legendre integration in pieces.
    double LengthTo(double u) const;
    double Length() const { return length_; }
    /// The parameter at which the way from the start is `length` long; 0 to 1.
    double ParameterAt(double length) const;

private:
    double Speed(double u) const;

    CurvePoint start_, control_, end_;
    double length_;
};

}  // namespace tamber

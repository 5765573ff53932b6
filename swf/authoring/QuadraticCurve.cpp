#include "swf/authoring/QuadraticCurve.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tamber {

namespace {

constexpr int Pieces = 8;

/// Five-point Gauss-Legendre nodes and weights on -1 to 1.
constexpr std::array<double, 5> Nodes{-0.9061798459386640, -0.5384693101056831, 0.0,
                                      0.5384693101056831, 0.9061798459386640};
constexpr std::array<double, 5> Weights{0.2369268850561891, 0.4786286704993665, 0.5688888888888889,
                                        0.4786286704993665, 0.2369268850561891};

}  // namespace

QuadraticCurve::QuadraticCurve(CurvePoint start, CurvePoint control, CurvePoint end)
    : start_(start), control_(control), end_(end), length_(0) {
    length_ = LengthTo(1.0);
}

CurvePoint QuadraticCurve::At(double u) const {
    const double v = 1.0 - u;
    return {v * v * start_.X + 2.0 * v * u * control_.X + u * u * end_.X,
            v * v * start_.Y + 2.0 * v * u * control_.Y + u * u * end_.Y};
}

double QuadraticCurve::Speed(double u) const {
    const double v = 1.0 - u;
    const double dx = 2.0 * (v * (control_.X - start_.X) + u * (end_.X - control_.X));
    const double dy = 2.0 * (v * (control_.Y - start_.Y) + u * (end_.Y - control_.Y));
    return std::hypot(dx, dy);
}

double QuadraticCurve::LengthTo(double u) const {
    const double half = u / Pieces / 2.0;
    double sum = 0;
    for (int piece = 0; piece < Pieces; ++piece) {
        const double middle = half * (2 * piece + 1);
        for (std::size_t i = 0; i < Nodes.size(); ++i)
            sum += Weights[i] * Speed(middle + half * Nodes[i]);
    }
    return sum * half;
}

double QuadraticCurve::ParameterAt(double length) const {
    if (length <= 0 || length_ <= 0) return 0;
    if (length >= length_) return 1;
    double low = 0;
    double high = 1;
    double u = length / length_;
    // Newton's step, kept inside a bracket that halves when the step leaves it.
    for (int step = 0; step < 60; ++step) {
        const double error = LengthTo(u) - length;
        if (std::fabs(error) < 1e-9 * length_) break;
        (error > 0 ? high : low) = u;
        const double speed = Speed(u);
        const double next = speed > 0 ? u - error / speed : -1;
        u = next > low && next < high ? next : (low + high) / 2.0;
    }
    return u;
}

}  // namespace tamber

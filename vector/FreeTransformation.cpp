#include "vector/FreeTransformation.h"

#include <algorithm>
#include <cmath>

#include "platform/rounding.h"
#include "vector/VectorLimits.h"

namespace tamber {

namespace {

constexpr double Pi = 3.14159265358979;

struct Point {
    Single X = 0;
    Single Y = 0;
};

Long Rounded(double value) {
    if (std::isnan(value)) return 0;
    return RoundToLong(std::clamp<double>(value, -MaxCoordinate, MaxCoordinate));
}

Single Share(Long part, Long whole) {
    return whole == 0 ? 0 : static_cast<Single>(part) / static_cast<Single>(whole);
}

/// The point at `share` of the way from one corner to another.
Point Between(SwfPoint from, SwfPoint to, Single share) {
    const auto x = static_cast<Single>(from.X);
    const auto y = static_cast<Single>(from.Y);
    return {x + (static_cast<Single>(to.X) - x) * share,
            y + (static_cast<Single>(to.Y) - y) * share};
}

double Slope(Point from, Point to) {
    return (static_cast<double>(to.Y) - from.Y) / (static_cast<double>(to.X) - from.X);
}

Single Direction(Point from, Point to) {
    if (from.X == to.X) return 90;
    return static_cast<Single>(std::atan(Slope(from, to)) * 180 / Pi);
}

/// Where the line a-b meets the line c-d; the middle of a and b when they do not meet. Slopes and
/// intercepts need more digits than a Single has: both grow large on lines that are nearly upright.
SwfPoint Intersection(Point a, Point b, Point c, Point d) {
    const SwfPoint middle{Rounded((a.X + b.X) / 2), Rounded((a.Y + b.Y) / 2)};
    if (a.X == b.X) {
        if (c.X == d.X) return middle;
        const double m2 = Slope(c, d);
        return {Rounded(a.X), Rounded(a.X * m2 + (d.Y - d.X * m2))};
    }
    const double m1 = Slope(a, b);
    const double c1 = b.Y - b.X * m1;
    if (c.X == d.X) return {Rounded(c.X), Rounded(c.X * m1 + c1)};
    const double m2 = Slope(c, d);
    if (m1 == m2) return middle;
    const double x = (c1 - (d.Y - d.X * m2)) / -(m1 - m2);
    return {Rounded(x), Rounded(m1 * x + c1)};
}

}  // namespace

SwfPoint FreeTransformation::MapPoint(SwfPoint point, Single* angle) const {
    const Single tx = Share(point.X, width_);
    const Point a = Between(corners_[0], corners_[1], tx);
    const Point b = Between(corners_[3], corners_[2], tx);
    const Single ty = Share(point.Y, height_);
    const Point c = Between(corners_[1], corners_[2], ty);
    const Point d = Between(corners_[0], corners_[3], ty);
    if (angle != nullptr) *angle = Direction(a, b);
    return Intersection(a, b, c, d);
}

}  // namespace tamber

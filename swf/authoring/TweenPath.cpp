#include "swf/authoring/TweenPath.h"

#include <algorithm>
#include <cmath>

#include "platform/rounding.h"
#include "platform/twips.h"

namespace tamber {

namespace {

constexpr Long FullRatio = 65535;

Single ToTwips(Single pixels, Single origin) {
    return static_cast<Single>((static_cast<double>(pixels) - origin) * TwipsPerPixel);
}

CurvePoint MiddleOf(CurvePoint a, CurvePoint b) {
    return {(a.X + b.X) / 2.0, (a.Y + b.Y) / 2.0};
}

struct PathPoint {
    CurvePoint Place;
    bool Control;
};

}  // namespace

TweenPath::TweenPath(const clsLayerObjElement& start, const clsLayerObjElement& end, Single originX,
                     Single originY) {
    const auto place = [&](Single x, Single y) {
        return CurvePoint{ToTwips(x, originX), ToTwips(y, originY)};
    };
    std::vector<PathPoint> points;
    for (const auto& point : start.colTweenPoint)
        points.push_back({place(point->X, point->Y), point->PointType != 0});
    points.push_back({place(end.X(), end.Y()), false});

    CurvePoint from = place(start.X(), start.Y());
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (!points[i].Control) {
            AddLine(from, points[i].Place);
            from = points[i].Place;
            continue;
        }
        const PathPoint& next = points[i + 1];
        const CurvePoint to = next.Control ? MiddleOf(points[i].Place, next.Place) : next.Place;
        AddCurve(from, points[i].Place, to);
        from = to;
        if (!next.Control) ++i;
    }
}

void TweenPath::AddLine(CurvePoint from, CurvePoint to) {
    const double length = std::hypot(to.X - from.X, to.Y - from.Y);
    const double before = segments_.empty() ? 0 : segments_.back().Total;
    segments_.push_back({false, from, from, to, length, before + length});
}

void TweenPath::AddCurve(CurvePoint from, CurvePoint control, CurvePoint to) {
    const double length = QuadraticCurve(from, control, to).Length();
    const double before = segments_.empty() ? 0 : segments_.back().Total;
    segments_.push_back({true, from, control, to, length, before + length});
}

SwfPoint TweenPath::At(Long ratio) const {
    const auto rounded = [](CurvePoint p) { return SwfPoint{RoundToLong(p.X), RoundToLong(p.Y)}; };
    if (ratio == 0) return rounded(segments_.front().Start);
    const double target = segments_.back().Total * ratio / FullRatio;
    auto found = std::lower_bound(
        segments_.begin(), segments_.end(), target,
        [](const Segment& segment, double length) { return segment.Total < length; });
    if (found == segments_.end()) --found;
    const Segment& s = *found;
    if (s.Length == 0) return rounded(s.Start);
    const double remain = target - (s.Total - s.Length);
    if (s.Curved) {
        const QuadraticCurve curve(s.Start, s.Control, s.End);
        return rounded(curve.At(curve.ParameterAt(remain)));
    }
    const double u = remain / s.Length;
    return rounded({s.Start.X * (1 - u) + s.End.X * u, s.Start.Y * (1 - u) + s.End.Y * u});
}

}  // namespace tamber

#include "swf/authoring/OutlinePath.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include "platform/twips.h"

namespace tamber {

namespace {

double AngleOf(CurvePoint from, CurvePoint to) {
    return std::atan2(to.Y - from.Y, to.X - from.X) * 180 / std::numbers::pi;
}

bool Same(CurvePoint a, CurvePoint b) {
    return a.X == b.X && a.Y == b.Y;
}

CurvePoint Mix(CurvePoint a, CurvePoint b, double share) {
    return {a.X + (b.X - a.X) * share, a.Y + (b.Y - a.Y) * share};
}

}  // namespace

OutlinePath::OutlinePath(const clsSWFTShapeRecords& records, Single scaleX, Single scaleY) {
    CurvePoint pen;
    const auto point = [scaleX, scaleY](Long x, Long y) {
        return CurvePoint{x / double{TwipsPerPixel} * scaleX, y / double{TwipsPerPixel} * scaleY};
    };
    for (const clsSWFTShapeRecord& record : records.colShapeRecords) {
        if (const auto* change = std::get_if<std::shared_ptr<clsSWFTShapeStyleChange>>(&record)) {
            if ((*change)->blMove) pen = point((*change)->MoveX, (*change)->MoveY);
            continue;
        }
        Segment segment;
        segment.Start = pen;
        if (const auto* line = std::get_if<clsSWFTShapeStraightEdge>(&record)) {
            segment.End = point(line->DrawX, line->DrawY);
            segment.Length = std::hypot(segment.End.X - pen.X, segment.End.Y - pen.Y);
        } else if (const auto* curve = std::get_if<clsSWFTShapeCurveEdge>(&record)) {
            segment.End = point(curve->AnchorX, curve->AnchorY);
            segment.Control = point(curve->ControlX, curve->ControlY);
            segment.Curve.emplace(pen, segment.Control, segment.End);
            segment.Length = segment.Curve->Length();
        }
        pen = segment.End;
        Add(std::move(segment));
    }
}

void OutlinePath::Add(Segment segment) {
    if (segment.Length <= 0) return;
    segment.Begin = length_;
    length_ += segment.Length;
    segments_.push_back(std::move(segment));
}

OutlinePath::Place OutlinePath::At(double way) const {
    if (segments_.empty()) return {};
    way = std::clamp(way, 0.0, length_);
    auto found = std::partition_point(
        segments_.begin(), segments_.end(),
        [way](const Segment& segment) { return segment.Begin + segment.Length < way; });
    if (found == segments_.end()) --found;
    const Segment& s = *found;
    const double rest = way - s.Begin;
    if (!s.Curve) return {Mix(s.Start, s.End, rest / s.Length), AngleOf(s.Start, s.End)};
    const double u = s.Curve->ParameterAt(rest);
    // The tangent runs through the points that divide the two arms.
    const CurvePoint from = Mix(s.Start, s.Control, u);
    const CurvePoint to = Mix(s.Control, s.End, u);
    return {s.Curve->At(u), Same(from, to) ? AngleOf(s.Start, s.End) : AngleOf(from, to)};
}

}  // namespace tamber

#include "vector/PdrContour.h"

#include "platform/RuntimeError.h"

namespace tamber {

namespace {

constexpr Long ErrorSubscript = 9;

SwfPoint MidPoint(SwfPoint a, SwfPoint b) {
    return {(a.X + b.X) / 2, (a.Y + b.Y) / 2};
}

}  // namespace

PdrContour::PdrContour(const std::vector<PdrPoint>& points, bool closed,
                       clsSWFTShapeRecords& records)
    : points_(points), closed_(closed), records_(records) {
    if (points.empty() || (points.size() == 1 && points[0].isControl))
        throw RuntimeError(ErrorSubscript, u"PdrContour", u"");
}

void PdrContour::Draw() {
    MoveToStart();
    Walk();
    DrawLast();
    if (closed_) Close();
}

void PdrContour::MoveToStart() {
    start_ = points_[0].Point;
    if (points_[0].isControl) {
        const PdrPoint& second = points_[1];
        start_ = second.isControl ? MidPoint(start_, second.Point) : second.Point;
        if (!second.isControl) next_ = 2;
    }
    records_.MovePenTo(start_.X, start_.Y);
}

void PdrContour::Walk() {
    while (next_ + 1 < points_.size()) {
        const PdrPoint& point = points_[next_];
        const PdrPoint& following = points_[next_ + 1];
        if (!point.isControl) {
            LineTo(point.Point);
            next_ += 1;
        } else if (following.isControl) {
            CurveTo(point.Point, MidPoint(point.Point, following.Point));
            next_ += 1;
        } else {
            CurveTo(point.Point, following.Point);
            next_ += 2;
        }
    }
}

void PdrContour::DrawLast() {
    if (next_ + 1 != points_.size()) return;
    const PdrPoint& first = points_.front();
    const PdrPoint& last = points_.back();
    if (!last.isControl) {
        LineTo(last.Point);
        return;
    }
    SwfPoint control = last.Point;
    if (first.isControl) {
        CurveTo(control, MidPoint(control, first.Point));
        control = first.Point;
    }
    CurveTo(control, start_);
}

void PdrContour::Close() {
    const PdrPoint& first = points_.front();
    if (!first.isControl)
        LineTo(start_);
    else if (!points_.back().isControl)
        CurveTo(first.Point, start_);
}

}  // namespace tamber

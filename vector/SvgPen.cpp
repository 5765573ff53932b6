#include "vector/SvgPen.h"

#include <algorithm>
#include <array>

#include "vector/SvgNumbers.h"

namespace tamber {

namespace {

/// Transformations that an edge may go through before it costs more.
constexpr std::size_t CheapMatrices = 16;
constexpr std::size_t CurvesPerCubic = 4;

/// One axis of a cubic as quadratic curves: the controls, then the ends.
constexpr std::size_t FirstEnd = CurvesPerCubic;
using CurvePoints = std::array<Long, CurvesPerCubic * 2>;

/// Powers of the parameter at the middles of the curves, then at their ends.
using Powers = std::array<Single, CurvesPerCubic * 2>;
constexpr Powers T1{0.125f, 0.375f, 0.625f, 0.875f, 0.25f, 0.5f, 0.75f, 1};

constexpr Powers Times(Powers a, const Powers& b) {
    for (std::size_t i = 0; i < a.size(); ++i) a[i] *= b[i];
    return a;
}
constexpr Powers T2 = Times(T1, T1);
constexpr Powers T3 = Times(T2, T1);

/// Samples the cubic at the middle and the end of each curve. A curve through its middle sample has
/// its control at twice that less the mean of its ends.
CurvePoints SplitCubic(Long start, Long control1, Long control2, Long end) {
    const auto p0 = static_cast<Single>(start);
    const auto p1 = static_cast<Single>(control1);
    const auto p2 = static_cast<Single>(control2);
    const auto p3 = static_cast<Single>(end);
    const Single c = 3 * (p1 - p0);
    const Single b = 3 * (p2 - p1) - c;
    const Single a = p3 - p0 - c - b;
    Powers samples;
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = a * T3[i] + b * T2[i] + c * T1[i] + p0;
    Single from = p0;
    for (std::size_t i = 0; i < CurvesPerCubic; ++i) {
        const Single to = samples[FirstEnd + i];
        samples[i] = 2 * samples[i] - (from + to) / 2;
        from = to;
    }
    CurvePoints points;
    // No sample lies beyond SvgFarthest, and so no control beyond three times that.
    for (std::size_t i = 0; i < points.size(); ++i)
        points[i] = std::clamp(RoundSvgTwips(samples[i]), -SvgFarthest, SvgFarthest);
    return points;
}

}  // namespace

SvgPen::SvgPen(clsSWFTShapeRecords& records, const SvgTransformation& transformation, bool line,
               Long lineWidth, SvgBudget& budget)
    : records_(records),
      transformation_(transformation),
      line_(line),
      reach_(lineWidth / 2),
      budget_(budget),
      edgeCost_(1 + (transformation.Own.size() + transformation.Around.size()) / CheapMatrices) {
    if (line_) records_.LineWidth = reach_;
}

void SvgPen::Expect(std::size_t edges) {
    records_.colShapeRecords.reserve(records_.colShapeRecords.size() + edges);
}

void SvgPen::MovePenTo(Long x, Long y) {
    Spend();
    start_ = transformation_.MapPoint(x, y);
    records_.MovePenTo(start_.X, start_.Y);
}

void SvgPen::DrawLineTo(Long x, Long y) {
    Spend();
    const SwfPoint point = transformation_.MapPoint(x, y);
    records_.DrawLineTo(point.X, point.Y);
}

void SvgPen::DrawCurveTo(SwfPoint control, SwfPoint anchor) {
    Spend();
    const SwfPoint c = transformation_.MapPoint(control.X, control.Y);
    const SwfPoint a = transformation_.MapPoint(anchor.X, anchor.Y);
    records_.DrawCurveTo(c.X, c.Y, a.X, a.Y);
}

void SvgPen::DrawCubicTo(SwfPoint control1, SwfPoint control2, SwfPoint anchor) {
    Spend(CurvesPerCubic);
    const SwfPoint p1 = transformation_.MapPoint(control1.X, control1.Y);
    const SwfPoint p2 = transformation_.MapPoint(control2.X, control2.Y);
    const SwfPoint p3 = transformation_.MapPoint(anchor.X, anchor.Y);
    const CurvePoints x = SplitCubic(records_.CurrentX, p1.X, p2.X, p3.X);
    const CurvePoints y = SplitCubic(records_.CurrentY, p1.Y, p2.Y, p3.Y);
    for (std::size_t i = 0; i < CurvesPerCubic; ++i)
        records_.DrawCurveTo(x[i], y[i], x[FirstEnd + i], y[FirstEnd + i]);
}

void SvgPen::Close(bool blLine) {
    if (records_.CurrentX == start_.X && records_.CurrentY == start_.Y) return;
    Spend();
    if (line_ && !blLine) {
        records_.SetLine(0);
        records_.LineWidth = 0;
    }
    records_.DrawLineTo(start_.X, start_.Y);
}

void SvgPen::TurnLineOn() {
    if (!line_ || records_.LineStyle != 0) return;
    records_.SetLine(1);
    records_.LineWidth = reach_;
}

}  // namespace tamber

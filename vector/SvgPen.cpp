#include "vector/SvgPen.h"

#include <array>

#include "vector/SvgNumbers.h"

namespace tamber {

namespace {

/// Transformations that an edge may go through before it costs more.
constexpr std::size_t CheapMatrices = 16;
constexpr std::size_t CurvesPerCubic = 4;

/// Samples of a cubic along one axis, two to a quadratic curve.
using CubicSamples = std::array<Single, CurvesPerCubic * 2 + 1>;

CubicSamples Sample(Long start, Long control1, Long control2, Long end) {
    const auto p0 = static_cast<Single>(start);
    const auto p1 = static_cast<Single>(control1);
    const auto p2 = static_cast<Single>(control2);
    const auto p3 = static_cast<Single>(end);
    const Single c = 3 * (p1 - p0);
    const Single b = 3 * (p2 - p1) - c;
    const Single a = p3 - p0 - c - b;
    CubicSamples samples;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const Single t = static_cast<Single>(i) / (CurvesPerCubic * 2);
        samples[i] = a * (t * t * t) + b * (t * t) + c * t + p0;
    }
    return samples;
}

/// Control of the quadratic curve through three samples from `i` on.
Long ControlAt(const CubicSamples& samples, std::size_t i) {
    return ToSvgTwips(2 * samples[i + 1] - (samples[i] + samples[i + 2]) / 2);
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
    for (std::size_t i = 0; i < CurvesPerCubic; ++i) Spend();
    const SwfPoint p1 = transformation_.MapPoint(control1.X, control1.Y);
    const SwfPoint p2 = transformation_.MapPoint(control2.X, control2.Y);
    const SwfPoint p3 = transformation_.MapPoint(anchor.X, anchor.Y);
    const CubicSamples x = Sample(records_.CurrentX, p1.X, p2.X, p3.X);
    const CubicSamples y = Sample(records_.CurrentY, p1.Y, p2.Y, p3.Y);
    for (std::size_t i = 0; i < CurvesPerCubic * 2; i += 2)
        records_.DrawCurveTo(ControlAt(x, i), ControlAt(y, i), ToSvgTwips(x[i + 2]),
                             ToSvgTwips(y[i + 2]));
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

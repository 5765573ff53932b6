#include "canvas/picture/ShapeCharacter.h"

#include <algorithm>
#include <cmath>

#include "canvas/picture/Painter.h"

namespace tamber {

namespace {

constexpr double WholeRatio = 65535;

Long Between(Long from, Long to, double ratio) {
    return static_cast<Long>(std::lround(from + (double{1} * to - from) * ratio));
}

SwfPoint Between(SwfPoint from, SwfPoint to, double ratio) {
    return {Between(from.X, to.X, ratio), Between(from.Y, to.Y, ratio)};
}

/// A straight edge's control point lies in its middle once it is mixed with a curve.
SwfPoint ControlOf(const OutlineStep& step) {
    if (step.blCurved) return step.Control;
    return Between(step.From, step.To, 0.5);
}

template <class Style>
std::vector<Style> MixEach(const std::vector<Style>& from, const std::vector<Style>& to,
                           double ratio) {
    std::vector<Style> mixed;
    for (std::size_t i = 0; i < std::min(from.size(), to.size()); ++i)
        mixed.push_back(Mix(from[i], to[i], ratio));
    return mixed;
}

/// A line is a pixel wide at least, half of which lies outside.
PaintBox DrawnBox(const PaintBox& box, const PaintState& state) {
    PaintBox drawn = box.Under(state.Matrix);
    drawn.Grow(1);
    return drawn;
}

}  // namespace

ShapeDrawing::ShapeDrawing(const std::vector<ShapeLayer>& layers, cairo_fill_rule_t rule)
    : rule_(rule) {
    for (const ShapeLayer& layer : layers) {
        if (layer.Steps.empty()) continue;
        const OutlineBuilder builder(layer.Steps);
        Layer drawn;
        auto fills = builder.Fills(static_cast<Long>(layer.Fills.size()));
        for (std::size_t i = 0; i < fills.size(); ++i)
            if (!fills[i].IsEmpty()) drawn.Fills.push_back({std::move(fills[i]), layer.Fills[i]});
        std::vector<bool> noClose;
        for (const PictureLine& line : layer.Lines) noClose.push_back(line.blNoClose);
        auto lines = builder.Lines(noClose);
        for (std::size_t i = 0; i < lines.size(); ++i)
            if (!lines[i].IsEmpty()) drawn.Lines.push_back({std::move(lines[i]), layer.Lines[i]});
        layers_.push_back(std::move(drawn));
    }
}

void ShapeDrawing::Draw(Painter& painter, const PaintState& state) const {
    for (const Layer& layer : layers_) {
        for (const FilledOutline& fill : layer.Fills)
            painter.Fill(fill.Path, fill.Fill, state, rule_);
        for (const DrawnOutline& line : layer.Lines) painter.Stroke(line.Path, line.Line, state);
    }
}

void ShapeCharacter::Draw(Painter& painter, const PaintState& state) const {
    drawing_.Draw(painter, state);
}

PaintBox ShapeCharacter::Bounds(const PaintState& state) const {
    return DrawnBox(bounds_, state);
}

ShapeDrawing MorphCharacter::At(double ratio) const {
    const ShapeLayer& from = from_.Layer;
    const ShapeLayer& to = to_.Layer;
    ShapeLayer mixed;
    mixed.Fills = MixEach(from.Fills, to.Fills, ratio);
    mixed.Lines = MixEach(from.Lines, to.Lines, ratio);
    const std::size_t edges = std::min(from.Steps.size(), to.Steps.size());
    mixed.Steps.assign(from.Steps.begin(), from.Steps.begin() + std::ptrdiff_t(edges));
    for (std::size_t i = 0; i < edges; ++i) {
        OutlineStep& step = mixed.Steps[i];
        const OutlineStep& end = to.Steps[i];
        const bool curved = step.blCurved || end.blCurved;
        step.Control = Between(ControlOf(step), ControlOf(end), ratio);
        step.From = Between(step.From, end.From, ratio);
        step.To = Between(step.To, end.To, ratio);
        step.blCurved = curved;
    }
    return ShapeDrawing({mixed}, CAIRO_FILL_RULE_EVEN_ODD);
}

void MorphCharacter::Draw(Painter& painter, const PaintState& state) const {
    if (drawnRatio_ != state.Ratio) {
        drawn_ = At(state.Ratio / WholeRatio);
        drawnRatio_ = state.Ratio;
    }
    drawn_.Draw(painter, state);
}

PaintBox MorphCharacter::Bounds(const PaintState& state) const {
    const double ratio = state.Ratio / WholeRatio;
    const auto between = [ratio](double from, double to) { return from + (to - from) * ratio; };
    const PaintBox& from = from_.Bounds;
    const PaintBox& to = to_.Bounds;
    return DrawnBox({between(from.Left, to.Left), between(from.Top, to.Top),
                     between(from.Right, to.Right), between(from.Bottom, to.Bottom)},
                    state);
}

}  // namespace tamber

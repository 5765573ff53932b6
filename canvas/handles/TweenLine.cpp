#include "canvas/handles/TweenLine.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tamber {

namespace {

/// Degrees between the directions of two lines.
constexpr double MostTurned = 3;

CanvasPoint Middle(CanvasPoint a, CanvasPoint b) {
    return {(a.X + b.X) / 2, (a.Y + b.Y) / 2};
}

/// At a third of the way from `a` to `b`, counted from `b`.
CanvasPoint TwoThirds(CanvasPoint a, CanvasPoint b) {
    return {a.X + (b.X - a.X) * 2 / 3, a.Y + (b.Y - a.Y) * 2 / 3};
}

/// -90 to 90, upright lines having 90.
double DirectionOf(CanvasPoint way) {
    return way.X == 0 ? 90 : std::atan(way.Y / way.X) * 180 / std::numbers::pi;
}

double Turned(CanvasPoint a, CanvasPoint b) {
    const double difference = std::abs(DirectionOf(a) - DirectionOf(b));
    return std::min(difference, 180 - difference);
}

bool IsBetween(double value, double a, double b, double reach) {
    return value >= std::min(a, b) - reach && value <= std::max(a, b) + reach;
}

bool Near(CanvasPoint a, CanvasPoint b, double reach) {
    return std::abs(a.X - b.X) <= reach && std::abs(a.Y - b.Y) <= reach;
}

}  // namespace

TweenLine::TweenLine(const clsLayerObjElement& element, CanvasPoint end, const CanvasView& view) {
    const auto add = [&](CanvasPoint place, bool control) {
        nodes_.push_back(view.ToCanvas(place));
        control_.push_back(control);
    };
    add({element.X(), element.Y()}, false);
    for (const auto& point : element.colTweenPoint)
        add({point->X, point->Y}, point->PointType != 0);
    add(end, false);
}

std::vector<TweenCurve> TweenLine::Curves() const {
    std::vector<TweenCurve> curves;
    CanvasPoint from = nodes_.front();
    for (std::size_t i = 1; i < nodes_.size(); ++i) {
        if (!control_[i]) {
            if (!control_[i - 1]) curves.push_back({from, from, nodes_[i], nodes_[i], false});
            from = nodes_[i];
            continue;
        }
        const CanvasPoint to = control_[i + 1] ? Middle(nodes_[i], nodes_[i + 1]) : nodes_[i + 1];
        curves.push_back({from, TwoThirds(from, nodes_[i]), TwoThirds(to, nodes_[i]), to, true});
        from = to;
    }
    return curves;
}

std::optional<std::size_t> TweenLine::NodeAt(CanvasPoint canvas, double reach) const {
    for (std::size_t i = nodes_.size() - 1; i-- > 0;)
        if (Near(nodes_[i], canvas, reach)) return i;
    return std::nullopt;
}

std::optional<std::size_t> TweenLine::SectionAt(CanvasPoint canvas, double reach) const {
    for (std::size_t i = 0; i + 1 < nodes_.size(); ++i) {
        const CanvasPoint a = nodes_[i];
        const CanvasPoint b = nodes_[i + 1];
        if (!IsBetween(canvas.X, a.X, b.X, reach) || !IsBetween(canvas.Y, a.Y, b.Y, reach))
            continue;
        if (Near(a, canvas, reach) || Turned(canvas - a, b - a) < MostTurned) return i;
    }
    return std::nullopt;
}

}  // namespace tamber

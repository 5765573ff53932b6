#pragma once

#include <optional>
#include <vector>

#include "canvas/handles/CanvasView.h"
#include "document/elements/clsLayerObjElement.h"

namespace tamber {

/// A part of a tween line as a cubic curve.
struct TweenCurve {
    CanvasPoint Start, Control1, Control2, End;
    bool blCurved = false;
};

/// The way of a tween on the canvas: from the element through its tween points to where the next
/// key frame stands.
class TweenLine {
public:
    TweenLine(const clsLayerObjElement& element, CanvasPoint end, const CanvasView& view);

    /// On the canvas: the element's place, its tween points in order, the end.
    const std::vector<CanvasPoint>& Nodes() const { return nodes_; }
    bool IsControl(std::size_t node) const { return control_[node]; }
    std::vector<TweenCurve> Curves() const;
    /// The node within `reach` pixels in both directions, but for the end; later ones lie above.
    std::optional<std::size_t> NodeAt(CanvasPoint canvas, double reach) const;
    /// The line from a node to the next one that passes under a point.
    std::optional<std::size_t> SectionAt(CanvasPoint canvas, double reach) const;

private:
    std::vector<CanvasPoint> nodes_;
    std::vector<bool> control_;
};

}  // namespace tamber

#include "canvas/handles/ScaleDrag.h"

#include "canvas/handles/DragHandle.h"

namespace tamber {

namespace {

enum class Outcome { Scaled, Ended, Collapsed };

struct Scales {
    double X, Y;
};

bool PullsX(Long handle) {
    return handle != DragHandle::Top && handle != DragHandle::Bottom;
}
bool PullsY(Long handle) {
    return handle != DragHandle::Left && handle != DragHandle::Right;
}

/// Between the control point and the side that a handle pulls there is nothing to scale.
bool HasNoRoom(const ElementFrame& frame, Long handle) {
    const CanvasPoint local = frame.LocalOf(handle);
    return (PullsX(handle) && local.X == 0) || (PullsY(handle) && local.Y == 0);
}

/// What a drag makes of the scales: `reach` is from what stands still to the handle, unscaled, and
/// `pulled` the same as it was dragged.
Outcome PullFree(Scales& scales, Long handle, CanvasPoint reach, CanvasPoint pulled) {
    if ((PullsX(handle) && reach.X == 0) || (PullsY(handle) && reach.Y == 0))
        return Outcome::Collapsed;
    if (PullsX(handle)) scales.X = pulled.X / reach.X;
    if (PullsY(handle)) scales.Y = pulled.Y / reach.Y;
    return Outcome::Scaled;
}

Outcome PullEdge(Scales& scales, Long handle, CanvasPoint reach, CanvasPoint pulled) {
    const Scales old = scales;
    const Outcome outcome = PullFree(scales, handle, reach, pulled);
    if (outcome != Outcome::Scaled) return outcome;
    const bool x = PullsX(handle);
    if ((x ? old.X : old.Y) == 0) return Outcome::Ended;
    if (x)
        scales.Y = old.Y * scales.X / old.X;
    else
        scales.X = old.X * scales.Y / old.Y;
    return Outcome::Scaled;
}

/// Both scales by how far the handle went along the diagonal.
Outcome PullDiagonal(Scales& scales, CanvasPoint reach, CanvasPoint pulled) {
    const CanvasPoint diagonal{reach.X * scales.X, reach.Y * scales.Y};
    const double length = diagonal.X * diagonal.X + diagonal.Y * diagonal.Y;
    if (length == 0) return Outcome::Collapsed;
    const double ratio = (pulled.X * diagonal.X + pulled.Y * diagonal.Y) / length;
    scales.X *= ratio;
    scales.Y *= ratio;
    return Outcome::Scaled;
}

Outcome Pull(Scales& scales, const ScaleDrag& drag, CanvasPoint reach, CanvasPoint pulled) {
    if (!drag.blFixedRatio) return PullFree(scales, drag.Handle, reach, pulled);
    if (IsEdge(drag.Handle)) return PullEdge(scales, drag.Handle, reach, pulled);
    return PullDiagonal(scales, reach, pulled);
}

/// False when a scale that changes would be nothing once it is stored.
bool Store(clsLayerObjElement& element, const clsLayerObjElement& start, const Scales& scales) {
    element.ScaleX(static_cast<Single>(scales.X));
    element.ScaleY(static_cast<Single>(scales.Y));
    const auto collapsed = [](Single now, Single before) { return now == 0 && before != 0; };
    return !collapsed(element.ScaleX(), start.ScaleX()) &&
           !collapsed(element.ScaleY(), start.ScaleY());
}

}  // namespace

Long AnchorOf(Long handle) {
    switch (handle) {
        case DragHandle::TopLeft:
            return DragHandle::BottomRight;
        case DragHandle::TopRight:
        case DragHandle::Top:
            return DragHandle::BottomLeft;
        case DragHandle::BottomLeft:
        case DragHandle::Left:
            return DragHandle::TopRight;
        default:
            return DragHandle::TopLeft;
    }
}

bool SetScale(clsLayerObjElement& element, const clsLayerObjElement& start, const SymbolBox& box,
              const ScaleDrag& drag, CanvasPoint way) {
    const ElementFrame frame(start, box);
    if (drag.blAboutOffset && HasNoRoom(frame, drag.Handle)) return true;
    const CanvasPoint anchor =
        drag.blAboutOffset ? CanvasPoint{} : frame.LocalOf(AnchorOf(drag.Handle));
    const CanvasPoint reach = frame.Sheared(frame.LocalOf(drag.Handle)) - frame.Sheared(anchor);
    Scales scales{start.ScaleX(), start.ScaleY()};
    const CanvasPoint along = frame.AlongAxes(way);
    const CanvasPoint pulled{reach.X * scales.X + along.X, reach.Y * scales.Y + along.Y};
    const Scales kept{element.ScaleX(), element.ScaleY()};
    const Outcome outcome = Pull(scales, drag, reach, pulled);
    if (outcome == Outcome::Ended) return true;
    if (outcome == Outcome::Collapsed || !Store(element, start, scales)) {
        element.ScaleX(static_cast<Single>(kept.X));
        element.ScaleY(static_cast<Single>(kept.Y));
        return false;
    }
    if (drag.blAboutOffset) return true;
    const CanvasPoint moved = frame.ToStage(anchor) - ElementFrame(element, box).ToStage(anchor);
    element.X(static_cast<Single>(element.X() + moved.X));
    element.Y(static_cast<Single>(element.Y() + moved.Y));
    return true;
}

}  // namespace tamber

#include "canvas/picture/TimelineDrawing.h"

#include <cmath>

namespace tamber {

namespace {

constexpr Long One = 256;

/// The frame that a timeline stands on after so many frames of its own, rounds counted.
Long LocalFrame(const Timeline& timeline, Long frame) {
    return frame % timeline.FrameCount();
}

}  // namespace

SwfColorTransform Concat(const SwfColorTransform& outer, const SwfColorTransform& inner) {
    const auto mult = [](Long a, Long b) { return static_cast<Long>(std::int64_t{a} * b / One); };
    return {mult(outer.MultR, inner.MultR),
            mult(outer.MultG, inner.MultG),
            mult(outer.MultB, inner.MultB),
            mult(outer.MultA, inner.MultA),
            mult(outer.MultR, inner.AddR) + outer.AddR,
            mult(outer.MultG, inner.AddG) + outer.AddG,
            mult(outer.MultB, inner.AddB) + outer.AddB,
            mult(outer.MultA, inner.AddA) + outer.AddA};
}

PaintState StateOf(const Placement& placement, const Timeline& timeline, const PaintState& parent) {
    if (std::chrono::steady_clock::now() > parent.Options->Deadline) throw PictureGivenUp();
    PaintState state = parent;
    state.OwnScaleX = std::hypot(placement.Matrix.xx, placement.Matrix.yx);
    state.OwnScaleY = std::hypot(placement.Matrix.xy, placement.Matrix.yy);
    cairo_matrix_multiply(&state.Matrix, &placement.Matrix, &parent.Matrix);
    state.Colors = Concat(parent.Colors, placement.Colors);
    state.Ratio = placement.Ratio;
    state.Name = placement.Name.empty() ? nullptr : &placement.Name;
    state.Frame = 0;
    if (parent.Options->blAnimate)
        state.Frame = timeline.Stays(placement)
                          ? parent.Frame
                          : LocalFrame(timeline, parent.Frame) - placement.Since;
    return state;
}

PaintBox BoundsOf(const Placement& placement, const PaintState& state) {
    PaintBox box = placement.Shown->Bounds(state);
    if (placement.Filters.empty() || box.IsEmpty()) return box;
    const FilterMargin margin = MarginOf(placement.Filters, state.Options->Scale);
    return {box.Left - margin.Left, box.Top - margin.Top, box.Right + margin.Right,
            box.Bottom + margin.Bottom};
}

const DisplayList& ShownOf(const Timeline& timeline, const PaintState& state) {
    return timeline.At(LocalFrame(timeline, state.Frame));
}

}  // namespace tamber

#include "canvas/picture/SpriteCharacter.h"

#include <algorithm>
#include <array>

#include "canvas/picture/Painter.h"
#include "canvas/picture/TimelineDrawing.h"

namespace tamber {

namespace {

/// A part of an axis, and where it comes to lie.
struct Segment {
    double From;
    double FromEnd;
    double To;
    double ToEnd;
    bool IsEmpty() const { return !(FromEnd > From && ToEnd > To); }
};

/// The three parts of an axis from `low` to `high` that is stretched by `scale`: the outer ones
/// keep their size, unless there is no room for both.
std::array<Segment, 3> Segments(double low, double innerLow, double innerHigh, double high,
                                double scale) {
    const double first = std::max(innerLow - low, 0.0);
    const double last = std::max(high - innerHigh, 0.0);
    const double corners = (first + last) / scale;
    const double fit = corners > high - low ? (high - low) / corners : 1;
    const double toLow = low + first / scale * fit;
    const double toHigh = high - last / scale * fit;
    return {{{low, innerLow, low, toLow},
             {innerLow, innerHigh, toLow, toHigh},
             {innerHigh, high, toHigh, high}}};
}

}  // namespace

void SpriteCharacter::Draw(Painter& painter, const PaintState& state) const {
    const bool stretches = state.OwnScaleX != 1 || state.OwnScaleY != 1;
    if (stretches && !grid_.IsEmpty() && state.OwnScaleX > 0 && state.OwnScaleY > 0)
        DrawByGrid(painter, state);
    else
        painter.Draw(timeline_, state);
}

void SpriteCharacter::DrawByGrid(Painter& painter, const PaintState& state) const {
    PaintState flat = state;
    cairo_matrix_init_identity(&flat.Matrix);
    const PaintBox whole = Bounds(flat);
    for (const Segment& x :
         Segments(whole.Left, grid_.Left, grid_.Right, whole.Right, state.OwnScaleX)) {
        for (const Segment& y :
             Segments(whole.Top, grid_.Top, grid_.Bottom, whole.Bottom, state.OwnScaleY)) {
            if (x.IsEmpty() || y.IsEmpty()) continue;
            const Painter::Clipping clipping(
                painter, PicturePath::OfBox(x.To, y.To, x.ToEnd, y.ToEnd), state, true);
            const double scaleX = (x.ToEnd - x.To) / (x.FromEnd - x.From);
            const double scaleY = (y.ToEnd - y.To) / (y.FromEnd - y.From);
            const cairo_matrix_t place{
                scaleX, 0, 0, scaleY, x.To - x.From * scaleX, y.To - y.From * scaleY};
            PaintState cell = state;
            cairo_matrix_multiply(&cell.Matrix, &place, &state.Matrix);
            painter.Draw(timeline_, cell);
        }
    }
}

PaintBox SpriteCharacter::Bounds(const PaintState& state) const {
    PaintBox box;
    for (const auto& placement : ShownOf(timeline_, state))
        if (placement->ClipDepth == 0)
            box.Add(BoundsOf(*placement, StateOf(*placement, timeline_, state)));
    return box;
}

}  // namespace tamber

#pragma once

#include <cairo.h>

#include "platform/types.h"

namespace tamber {

class Painter;
struct PaintState;

/// A box in twips or in pixels; empty when its right lies left of its left.
struct PaintBox {
    double Left = 1;
    double Top = 1;
    double Right = 0;
    double Bottom = 0;

    bool IsEmpty() const { return Right < Left || Bottom < Top; }
    /// Grows to hold another.
    void Add(const PaintBox& other);
    void Add(double x, double y) { Add(PaintBox{x, y, x, y}); }
    void Grow(double by);
    PaintBox Cut(const PaintBox& other) const;
    bool Meets(const PaintBox& other) const { return !Cut(other).IsEmpty(); }
    /// That between whole pixels which holds it.
    PaintBox Outwards() const;
    /// The box around it once it is transformed.
    PaintBox Under(const cairo_matrix_t& matrix) const;
    bool operator==(const PaintBox&) const = default;
};

/// Something that a movie defines and can be placed.
class Character {
public:
    virtual ~Character() = default;

    virtual void Draw(Painter& painter, const PaintState& state) const = 0;
    /// Sprites within each other, below this one; 0 for what shows no others.
    virtual Long Nesting() const { return 0; }
    /// What drawing touches, pixels; `state` as for `Draw`.
    virtual PaintBox Bounds(const PaintState& state) const = 0;
};

}  // namespace tamber

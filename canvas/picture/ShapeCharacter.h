#pragma once

#include <memory>
#include <vector>

#include "canvas/picture/Character.h"
#include "canvas/picture/OutlineBuilder.h"
#include "canvas/picture/PictureFill.h"
#include "swf/SwfTypes.h"

namespace tamber {

/// A set of styles of a shape, and the edges drawn with them.
struct ShapeLayer {
    std::vector<PictureFill> Fills;
    std::vector<PictureLine> Lines;
    std::vector<OutlineStep> Steps;
};

/// Outlines with what they are painted with, in the order of painting.
class ShapeDrawing {
public:
    ShapeDrawing() = default;
    ShapeDrawing(const std::vector<ShapeLayer>& layers, cairo_fill_rule_t rule);

    void Draw(Painter& painter, const PaintState& state) const;

private:
    struct FilledOutline {
        PicturePath Path;
        PictureFill Fill;
    };
    struct DrawnOutline {
        PicturePath Path;
        PictureLine Line;
    };
    struct Layer {
        std::vector<FilledOutline> Fills;
        std::vector<DrawnOutline> Lines;
    };

    cairo_fill_rule_t rule_ = CAIRO_FILL_RULE_EVEN_ODD;
    std::vector<Layer> layers_;
};

/// A shape.
class ShapeCharacter : public Character {
public:
    ShapeCharacter(const std::vector<ShapeLayer>& layers, cairo_fill_rule_t rule, PaintBox bounds)
        : drawing_(layers, rule), bounds_(bounds) {}

    void Draw(Painter& painter, const PaintState& state) const override;
    PaintBox Bounds(const PaintState& state) const override;

private:
    ShapeDrawing drawing_;
    PaintBox bounds_;
};

/// A shape that changes into another, as far as the ratio of its placement says (65535 is wholly).
class MorphCharacter : public Character {
public:
    struct State {
        ShapeLayer Layer;
        PaintBox Bounds;
    };
    /// Both states have the same number of styles. Of edges the shorter one's count.
    MorphCharacter(State from, State to) : from_(std::move(from)), to_(std::move(to)) {}

    void Draw(Painter& painter, const PaintState& state) const override;
    PaintBox Bounds(const PaintState& state) const override;

private:
    ShapeDrawing At(double ratio) const;

    State from_;
    State to_;
    /// The ratio drawn last, and how it looks.
    mutable Long drawnRatio_ = -1;
    mutable ShapeDrawing drawn_;
};

}  // namespace tamber

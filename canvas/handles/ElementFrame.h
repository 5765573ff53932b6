#pragma once

#include <array>

#include "canvas/handles/CanvasView.h"
#include "document/elements/clsLayerObjElement.h"

namespace tamber {

class clsSymbolData;

/// What a symbol covers around its own origin, pixels.
struct SymbolBox {
    double Left = 0;
    double Top = 0;
    double Width = 0;
    double Height = 0;
};

/// That of a sprite is moved by its origin.
SymbolBox BoxOf(const clsSymbolData& symbol);

/// A box on the stage, pixels.
struct StageBox {
    double Left = 0;
    double Top = 0;
    double Right = 0;
    double Bottom = 0;
};

/// The frame of a placed symbol on the stage: moved to its control point, sheared, scaled, turned
/// and put where the element stands.
class ElementFrame {
public:
    ElementFrame(const clsLayerObjElement& element, const SymbolBox& box);

    /// Where a point lies that is told from the control point in the symbol's pixels.
    CanvasPoint ToStage(CanvasPoint local) const;
    /// From the control point in the symbol's pixels; nothing sensible for a scale of 0.
    CanvasPoint ToLocal(CanvasPoint stage) const;
    /// A point from the control point, sheared but neither scaled nor turned.
    CanvasPoint Sheared(CanvasPoint local) const;
    /// A way on the stage along the axes of the frame.
    CanvasPoint AlongAxes(CanvasPoint way) const { return Rotate(way, -angle_); }
    /// The other way round, scaled.
    CanvasPoint FromAxes(CanvasPoint along) const { return Rotate(along, angle_); }

    /// A corner's or the middle of an edge's place, from the control point.
    CanvasPoint LocalOf(Long handle) const;
    CanvasPoint PlaceOf(Long handle) const { return ToStage(LocalOf(handle)); }
    /// Top left, top right, bottom right, bottom left on the stage.
    std::array<CanvasPoint, 4> Corners() const;
    StageBox Bounds() const;
    bool Contains(CanvasPoint stage) const;

private:
    double left_, top_, right_, bottom_;
    double x_, y_;
    double scaleX_, scaleY_;
    double angle_;
    double shearX_, shearY_;
};

}  // namespace tamber

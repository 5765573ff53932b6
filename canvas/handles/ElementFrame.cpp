#include "canvas/handles/ElementFrame.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "canvas/handles/DragHandle.h"
#include "document/records/clsPropertySprite.h"
#include "document/symbols/clsSymbolData.h"

namespace tamber {

namespace {

double Radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

/// -1 at the left or top, 1 at the right or bottom, 0 in the middle.
struct HandleSide {
    int X, Y;
};

HandleSide SideOf(Long handle) {
    switch (handle) {
        case DragHandle::TopLeft:
            return {-1, -1};
        case DragHandle::TopRight:
            return {1, -1};
        case DragHandle::BottomRight:
            return {1, 1};
        case DragHandle::BottomLeft:
            return {-1, 1};
        case DragHandle::Top:
            return {0, -1};
        case DragHandle::Right:
            return {1, 0};
        case DragHandle::Bottom:
            return {0, 1};
        case DragHandle::Left:
            return {-1, 0};
        default:
            return {0, 0};
    }
}

double Between(double low, double high, int side) {
    return side < 0 ? low : side > 0 ? high : (low + high) / 2;
}

}  // namespace

CanvasPoint Rotate(CanvasPoint point, double degrees) {
    const double s = std::sin(Radians(degrees));
    const double c = std::cos(Radians(degrees));
    return {point.X * c - point.Y * s, point.X * s + point.Y * c};
}

SymbolBox BoxOf(const clsSymbolData& symbol) {
    SymbolBox box{0, 0, double(symbol.PixelWidth()), double(symbol.PixelHeight())};
    if (const auto* sprite = symbol.Property<clsPropertySprite>()) {
        box.Left = -sprite->baseX;
        box.Top = -sprite->baseY;
    }
    return box;
}

ElementFrame::ElementFrame(const clsLayerObjElement& element, const SymbolBox& box)
    : left_(box.Left - element.OffsetX()),
      top_(box.Top - element.OffsetY()),
      right_(left_ + box.Width),
      bottom_(top_ + box.Height),
      x_(element.X()),
      y_(element.Y()),
      scaleX_(element.ScaleX()),
      scaleY_(element.ScaleY()),
      angle_(element.Angle()),
      shearX_(std::tan(Radians(element.SkewX()))),
      shearY_(std::tan(Radians(element.SkewY()))) {}

/// Sideways first; the upright shear then takes along what that moved.
CanvasPoint ElementFrame::Sheared(CanvasPoint local) const {
    return {local.X * (1 + shearX_ * shearY_) + local.Y * shearX_, local.X * shearY_ + local.Y};
}

CanvasPoint ElementFrame::ToStage(CanvasPoint local) const {
    const CanvasPoint sheared = Sheared(local);
    return CanvasPoint{x_, y_} + FromAxes({sheared.X * scaleX_, sheared.Y * scaleY_});
}

CanvasPoint ElementFrame::ToLocal(CanvasPoint stage) const {
    const CanvasPoint along = AlongAxes(stage - CanvasPoint{x_, y_});
    const CanvasPoint sheared{along.X / scaleX_, along.Y / scaleY_};
    return {sheared.X - sheared.Y * shearX_,
            sheared.Y * (1 + shearX_ * shearY_) - sheared.X * shearY_};
}

CanvasPoint ElementFrame::LocalOf(Long handle) const {
    const HandleSide side = SideOf(handle);
    return {Between(left_, right_, side.X), Between(top_, bottom_, side.Y)};
}

std::array<CanvasPoint, 4> ElementFrame::Corners() const {
    return {PlaceOf(DragHandle::TopLeft), PlaceOf(DragHandle::TopRight),
            PlaceOf(DragHandle::BottomRight), PlaceOf(DragHandle::BottomLeft)};
}

StageBox ElementFrame::Bounds() const {
    const auto corners = Corners();
    const auto byX = [](CanvasPoint a, CanvasPoint b) { return a.X < b.X; };
    const auto byY = [](CanvasPoint a, CanvasPoint b) { return a.Y < b.Y; };
    const auto [left, right] = std::minmax_element(corners.begin(), corners.end(), byX);
    const auto [top, bottom] = std::minmax_element(corners.begin(), corners.end(), byY);
    return {left->X, top->Y, right->X, bottom->Y};
}

bool ElementFrame::Contains(CanvasPoint stage) const {
    if (scaleX_ == 0 || scaleY_ == 0) return false;
    const CanvasPoint local = ToLocal(stage);
    return local.X >= left_ && local.X <= right_ && local.Y >= top_ && local.Y <= bottom_;
}

}  // namespace tamber

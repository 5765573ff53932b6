#pragma once

#include "platform/types.h"

namespace tamber {

/// A place on the canvas or on the stage, pixels.
struct CanvasPoint {
    double X = 0;
    double Y = 0;
    bool operator==(const CanvasPoint&) const = default;
};

inline CanvasPoint operator+(CanvasPoint a, CanvasPoint b) {
    return {a.X + b.X, a.Y + b.Y};
}
inline CanvasPoint operator-(CanvasPoint a, CanvasPoint b) {
    return {a.X - b.X, a.Y - b.Y};
}

/// Turns a point around the origin, clockwise on the screen.
CanvasPoint Rotate(CanvasPoint point, double degrees);

/// Where the stage lies on the canvas.
struct CanvasView {
    /// Pixels of the canvas for a pixel of the stage.
    double Zoom = 1;
    /// The stage's origin on the canvas.
    double Left = 0;
    double Top = 0;

    CanvasPoint ToCanvas(CanvasPoint stage) const {
        return {Left + stage.X * Zoom, Top + stage.Y * Zoom};
    }
    CanvasPoint ToStage(CanvasPoint canvas) const {
        return {(canvas.X - Left) / Zoom, (canvas.Y - Top) / Zoom};
    }
};

}  // namespace tamber

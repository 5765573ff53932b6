#pragma once

#include "canvas/handles/ElementFrame.h"

namespace tamber {

/// A drag of a corner or an edge.
struct ScaleDrag {
    Long Handle = 0;
    bool blFixedRatio = false;
    /// The control point stays where it is, and not what lies opposite.
    bool blAboutOffset = false;
};

/// The corner that stands still while a handle is dragged.
Long AnchorOf(Long handle);

/// Scales `element` as a handle that moved by `way` on the stage, since the element looked like
/// `start`, says, and moves it so that what is to stand still does. False when an axis would
/// collapse: the scale then stays.
bool SetScale(clsLayerObjElement& element, const clsLayerObjElement& start, const SymbolBox& box,
              const ScaleDrag& drag, CanvasPoint way);

}  // namespace tamber

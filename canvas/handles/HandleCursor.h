#pragma once

#include "document/elements/clsLayerObjElement.h"

namespace tamber {

/// Shapes of the mouse over the handles: the numbers of the arrows, and those of the program's own
/// pictures.
namespace HandleCursor {
inline constexpr Long Move = 5;
inline constexpr Long NorthEastSouthWest = 6;
inline constexpr Long Vertical = 7;
inline constexpr Long NorthWestSouthEast = 8;
inline constexpr Long Horizontal = 9;
inline constexpr Long NoElement = 99;
inline constexpr Long Rotation = 101;
inline constexpr Long Offset = 102;
inline constexpr Long TweenAnchor = 103;
inline constexpr Long TweenControl = 104;
}  // namespace HandleCursor

/// The shape for a handle of an element; null for none selected.
Long MousePointer(Long status, const clsLayerObjElement* element);

}  // namespace tamber

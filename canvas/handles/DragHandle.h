#pragma once

#include "platform/types.h"

namespace tamber {

/// What of an element's handles lies under the mouse, or is dragged.
namespace DragHandle {
inline constexpr Long None = 0;
/// The whole element, with the tween point in use.
inline constexpr Long Body = 1;
inline constexpr Long TopLeft = 2;
inline constexpr Long TopRight = 3;
inline constexpr Long BottomRight = 4;
inline constexpr Long BottomLeft = 5;
inline constexpr Long Top = 6;
inline constexpr Long Right = 7;
inline constexpr Long Bottom = 8;
inline constexpr Long Left = 9;
/// The element's control point.
inline constexpr Long Offset = 10;
inline constexpr Long Rotation = 11;
/// A tween point where the element stands, which takes the element along.
inline constexpr Long TweenAnchor = 12;
/// A tween point, or a part of the tween line.
inline constexpr Long TweenControl = 13;
/// The element's own place at the beginning of its tween line.
inline constexpr Long TweenStart = 14;
}  // namespace DragHandle

inline bool IsCorner(Long handle) {
    return handle >= DragHandle::TopLeft && handle <= DragHandle::BottomLeft;
}
inline bool IsEdge(Long handle) {
    return handle >= DragHandle::Top && handle <= DragHandle::Left;
}

/// Keys held in a drag, as a mask.
namespace DragKey {
inline constexpr Long Shift = 1;
inline constexpr Long Ctrl = 2;
inline constexpr Long Alt = 4;
}  // namespace DragKey

}  // namespace tamber

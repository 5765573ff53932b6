#include "canvas/handles/HandleCursor.h"

#include "canvas/handles/DragHandle.h"
#include "platform/rounding.h"

namespace tamber {

namespace {

/// Eighths of a turn from upright to where a handle pulls, of an element that is not turned; one
/// that is mirrored pulls the other way at its corners.
Long DirectionOf(Long handle, bool mirrored) {
    switch (handle) {
        case DragHandle::TopLeft:
        case DragHandle::BottomRight:
            return mirrored ? 1 : 3;
        case DragHandle::TopRight:
        case DragHandle::BottomLeft:
            return mirrored ? 3 : 1;
        case DragHandle::Top:
        case DragHandle::Bottom:
            return 0;
        default:
            return 2;
    }
}

Long EighthsOf(Single angle) {
    Long folded = RoundToLong(angle) % 180;
    if (folded < 0) folded += 180;
    if (folded < 22.5 || folded > 157.5) return 0;
    if (folded <= 67.5) return 1;
    return folded <= 112.5 ? 2 : 3;
}

}  // namespace

Long MousePointer(Long status, const clsLayerObjElement* element) {
    if (element == nullptr) return HandleCursor::NoElement;
    switch (status) {
        case DragHandle::None:
            return 0;
        case DragHandle::Body:
        case DragHandle::TweenStart:
            return HandleCursor::Move;
        case DragHandle::Offset:
            return HandleCursor::Offset;
        case DragHandle::Rotation:
            return HandleCursor::Rotation;
        case DragHandle::TweenAnchor:
            return HandleCursor::TweenAnchor;
        case DragHandle::TweenControl:
            return HandleCursor::TweenControl;
        default:
            break;
    }
    constexpr Long Arrows[] = {HandleCursor::Vertical, HandleCursor::NorthEastSouthWest,
                               HandleCursor::Horizontal, HandleCursor::NorthWestSouthEast};
    const bool mirrored = element->ScaleX() * element->ScaleY() < 0;
    return Arrows[(DirectionOf(status, mirrored) + EighthsOf(element->Angle())) % 4];
}

}  // namespace tamber

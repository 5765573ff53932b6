#pragma once

#include "platform/rounding.h"
#include "platform/types.h"

namespace tamber {

/// A drag of a value in whole units.
class clsDragMove {
public:
    /// Mouse at the drag's start, pixels.
    Long DragX = 0;
    Long DragY = 0;
    /// Pixels for a unit.
    Single CellcX = 0;
    Single CellcY = 0;
    /// Value at the drag's start.
    Long X = 0;
    Long Y = 0;
    /// The value grows to the left, and upwards.
    bool PolX = false;
    bool PolY = false;

    /// The value for a place of the mouse; x and y stay as they are while a unit has no size.
    void DragMove(Long mouseX, Long mouseY, Long& x, Long& y) const {
        if (CellcX == 0 || CellcY == 0) return;
        x = X + RoundToLong((PolX ? DragX - mouseX : mouseX - DragX) / double(CellcX));
        y = Y + RoundToLong((PolY ? DragY - mouseY : mouseY - DragY) / double(CellcY));
    }
};

}  // namespace tamber

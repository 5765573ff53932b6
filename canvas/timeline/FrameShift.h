#pragma once

#include "canvas/timeline/RowRange.h"
#include "document/symbols/clsLayer.h"
#include "platform/Collection.h"

namespace tamber {

enum class ShiftDirection { Right, Left };

/// Shifts the key frames of rows, all but the background and folders, by the frames, which inserts
/// or removes the range. True when anything changed.
bool ShiftRows(const Collection<clsLayer>& layers, RowRange rows, Long frame1, Long frame2,
               ShiftDirection direction);

/// The same for the selected rows: of one folder row those in it, and any other single row itself.
bool ShiftSelected(const Collection<clsLayer>& layers, Long row1, Long row2, Long frame1,
                   Long frame2, ShiftDirection direction);

}  // namespace tamber

#pragma once

#include <functional>

#include "document/symbols/clsLayer.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/Collection.h"

namespace tamber {

/// Rows that show the symbols of a range of library rows, which may stand in either order, each
/// with one key frame at `frame`. Symbol folders become folder rows: those in the range with all
/// that they hold, and those that hold the whole range. Classes are left out.
Collection<clsLayer> LayersForSymbols(const Collection<clsSymbolData>& library, Long row1,
                                      Long row2, Long frame);

/// Takes the rows out whose symbol is refused, folders with what they hold.
void RemoveRefusedRows(Collection<clsLayer>& rows,
                       const std::function<bool(const clsSymbolData& symbol)>& refused);

/// A row of a kind that stands for no symbol of the library (label, action, folder), with a key
/// frame at `frame`.
std::shared_ptr<clsLayer> MakeOwnLayer(Long kind, Long frame);

}  // namespace tamber

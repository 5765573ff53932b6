#pragma once

#include "document/symbols/clsLayer.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/Collection.h"

namespace tamber {

/// Sprites and buttons shown within each other at most.
inline constexpr Long DeepestNesting = 500;

/// Makes the row counts of folders true that a file tells too low or too high: below 0 counts as
/// none, and no folder reaches beyond the one that holds it, the last row or the background.
void FitSymbolCounts(Collection<clsSymbolData>& symbols);
void FitLayerCounts(Collection<clsLayer>& layers);

/// Sets `ParentFolder` of each row from the row counts of the folders before it.
void NestSymbols(Collection<clsSymbolData>& symbols);
void NestLayers(Collection<clsLayer>& layers);

}  // namespace tamber

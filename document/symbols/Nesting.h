#pragma once

#include "document/symbols/clsLayer.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/Collection.h"

namespace tamber {

/// Sprites and buttons shown within each other at most.
inline constexpr Long DeepestNesting = 500;

/// Sets `ParentFolder` of each row from the row counts of the folders before it.
void NestSymbols(Collection<clsSymbolData>& symbols);
void NestLayers(Collection<clsLayer>& layers);

}  // namespace tamber

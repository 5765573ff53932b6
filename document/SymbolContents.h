#pragma once

#include "document/clsLayer.h"
#include "document/clsSymbolData.h"
#include "platform/Collection.h"

namespace tamber {

/// True when `outer` is the symbol, or shows it: in its timeline, in a state of a button or as a
/// picture of a koma, at any depth. A timeline of `symbol` cannot show `outer` then.
bool ShowsSymbol(const clsSymbolData& outer, const clsSymbolData& symbol);
/// The same for what layers show.
bool ShowsSymbol(const Collection<clsLayer>& layers, const clsSymbolData& symbol);

}  // namespace tamber

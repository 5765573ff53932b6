#pragma once

#include "document/symbols/clsSymbolData.h"

namespace tamber {

/// Side of a placeholder, pixels.
inline constexpr Long PlaceholderSize = 32;

/// Fills what the record of a picture or drawing would hold of its file with an empty frame. A
/// drawing that is stretched over four corners has it there. The record's options stay.
void SetPlaceholder(clsSymbolData& symbol);

}  // namespace tamber

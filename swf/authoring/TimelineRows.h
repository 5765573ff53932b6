#pragma once

#include <vector>

#include "document/symbols/clsLayer.h"
#include "platform/Collection.h"

namespace tamber {

/// Positions of the rows of a timeline that are generated, in the order of their depths. Rows in a
/// hidden folder are left out from the top to the bottom only.
std::vector<Long> WalkedRows(const Collection<clsLayer>& layers, bool topToBottom);

}  // namespace tamber

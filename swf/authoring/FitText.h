#pragma once

#include "document/symbols/clsSymbolData.h"
#include "swf/tags/clsFontAdmin.h"

namespace tamber {

/// The text symbol sets its characters along the outline of another symbol that has one.
bool FollowsOutline(const clsSymbolData& symbol);

/// A temporary sprite symbol that holds each character of such a text on a layer of its own, placed
/// along the first shape of the outline. `fonts` holds the text's glyphs.
std::shared_ptr<clsSymbolData> FitTextSprite(const clsSymbolData& symbol,
                                             const clsFontAdmin& fonts);

}  // namespace tamber

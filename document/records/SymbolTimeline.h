#pragma once

#include <memory>

#include "document/symbols/clsLayer.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/Collection.h"

namespace tamber {

class clsUndoRedo;

/// The timeline of a sprite or class; null for other kinds.
std::shared_ptr<Collection<clsLayer>> TimelineOf(const clsSymbolData& symbol);
/// Gives a sprite or class another timeline; nothing for other kinds.
void SetTimelineOf(const clsSymbolData& symbol, std::shared_ptr<Collection<clsLayer>> layers);
/// Where the record of a sprite or class holds its history; null for other kinds.
std::shared_ptr<clsUndoRedo>* OwnHistory(const clsSymbolData& symbol);

}  // namespace tamber

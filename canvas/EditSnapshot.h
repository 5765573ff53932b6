#pragma once

#include "document/symbols/clsSymbolData.h"
#include "swf/authoring/clsSWFAdmin.h"
#include "swf/authoring/mdlSWFAuthoring.h"

namespace tamber {

/// Writes a movie of one frame of a timeline, for the canvas. `admin` has its dimension, version
/// and fonts, and is empty again behind it; `backColor` has red in the low byte. `placed` gets the
/// placements, for hit tests. Nothing is said; false when the file could not be written: an earlier
/// one, and `placed`, then stay.
bool WriteEditSnapshot(clsSWFAdmin& admin, const SnapshotRequest& snapshot, Long backColor,
                       StringView path, PlacedTags& placed);

}  // namespace tamber

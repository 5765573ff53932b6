#pragma once

#include "canvas/picture/PictureMovie.h"
#include "swf/authoring/clsSWFAdmin.h"
#include "swf/authoring/mdlSWFAuthoring.h"

namespace tamber {

/// A movie of one frame of a timeline, never written to a file. `admin` has its dimension, version
/// and fonts, and is empty again behind it; `backColor` has red in the low byte. `placed` gets the
/// placements. What `cache` knows from the snapshot before is not read again. Null for one that no
/// movie can hold.
std::shared_ptr<const PictureMovie> SnapshotMovie(clsSWFAdmin& admin,
                                                  const SnapshotRequest& snapshot, Long backColor,
                                                  PlacedTags& placed, CharacterCache& cache);

/// The file of a movie of a symbol alone, of a version and with the fonts of its library. Empty for
/// a kind that cannot be placed.
Bytes SymbolMovieFile(const std::shared_ptr<clsSymbolData>& symbol, Long version,
                      std::shared_ptr<clsFontAdmin> fonts);

/// Reads such a file; the stage is what the symbol covers. Null where nothing is to be seen.
std::shared_ptr<const PictureMovie> ReadSymbolMovie(ByteView file);

}  // namespace tamber

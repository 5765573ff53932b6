#pragma once

#include "document/symbols/clsLayer.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/Collection.h"
#include "platform/Notice.h"
#include "swf/authoring/DefinitionTable.h"
#include "swf/tags/clsFontAdmin.h"
#include "swf/tags/clsSWFTagPlaceObject.h"

namespace tamber {

class clsSWFAdmin;

/// What a movie is built from.
struct MovieRequest {
    Long Width = 0;  ///< twips
    Long Height = 0;
    Single FrameRate = 12;
    Long Version = 6;
    const Collection<clsSymbolData>* Library = nullptr;
    const Collection<clsLayer>* Layers = nullptr;
    /// Fonts of the library's texts; without them a movie has none.
    std::shared_ptr<clsFontAdmin> Fonts;
    String Path;
    /// Gets the bytes of the movie, and no file is written, when given.
    Bytes* Movie = nullptr;
    bool blProgress = false;
    bool blCompress = true;
    /// The first layer of the table is the topmost one.
    bool blTopToBottom = true;
    Long BackColor = 0xFFFFFF;  ///< blue in the low byte
    /// Gets a tab and the name of each named anchor, when given.
    String* AnchorLabels = nullptr;
    /// Where the files that scripts include are looked for; empty for a project never saved.
    String ProjectFolder;
    /// Faults of clip actions are told.
    bool blScriptMessages = true;
    bool blExports = true;
    bool blExportsInFrameTwo = false;
};

/// What a build gives back.
struct MovieOutcome {
    bool Written = false;
    /// All clip actions could be used.
    bool ScriptsValid = true;
    /// What could not go into the movie, in the order in which it is to be told.
    Notices Told;
    /// Identifiers of the library's symbols in the movie.
    DefinitionTable Identifiers;
};

/// One frame of a timeline, as the canvas shows it.
struct SnapshotRequest {
    const Collection<clsLayer>* Layers = nullptr;
    /// Rows to show; masks among them clip as in the movie.
    Long FirstRow = 1;
    Long LastRow = 1;
    Long Frame = 1;
    /// The first layer of the table is the topmost one.
    bool blTopToBottom = true;
};

using PlacedTags = std::vector<std::shared_ptr<clsSWFTagPlaceObject>>;

namespace mdlSWFAuthoring {

/// Builds and writes a movie; the project is read only. What cannot go into it is left out and
/// told.
MovieOutcome BuildMovie(const MovieRequest& request);

/// Fills an empty movie of the global version with one frame of a timeline. The result are the
/// placements, each with its row and key frame.
PlacedTags WriteFrameSnapshot(clsSWFAdmin& admin, const SnapshotRequest& snapshot, Notices& told);

/// Last frame on which a visible layer shows anything, 0 when there is none.
Long LastShownFrame(const Collection<clsLayer>& layers);

/// Depths that a mask on this layer clips: those of the layers listed just before it.
Long ClipDepthOf(const Collection<clsLayer>& layers, Long layerIndex, Long clippingDepth);

}  // namespace mdlSWFAuthoring

}  // namespace tamber

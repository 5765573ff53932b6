#pragma once

#include "document/records/clsPropertyVector.h"

namespace tamber {

/// Where the preview of a vector symbol lies: "SyblPrev.swf" in the folder of temporary files.
String VectorPreviewPath();

/// Writes a movie of `version` that shows a vector symbol alone, at depth 256: on a stage of its
/// size, or, for a morph, over `morphFrames` frames on a stage that holds both of its states. False
/// when there is nothing to show or the file cannot be written.
bool PreView(const clsPropertyVector& record, Long version, Long morphFrames, StringView path);

}  // namespace tamber

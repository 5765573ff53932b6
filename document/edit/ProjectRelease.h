#pragma once

#include "document/Project.h"
#include "document/edit/clsUndoRedo.h"

namespace tamber {

/// Empties a project that is closed, and the histories of its timelines. Timelines and histories
/// refer to symbols that may hold them in turn, and would else keep each other for ever.
void ReleaseProject(Project& project, clsUndoRedo& history);

}  // namespace tamber

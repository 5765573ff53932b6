#pragma once

#include "document/Project.h"
#include "script/editor/ScriptCandidates.h"

namespace tamber {

/// The names that a project tells to its scripts: instances, labels and linkage names of all its
/// timelines, its classes, and those of the files "*.as" of a folder; empty for no folder.
ProjectNames ReadProjectNames(const Project& project, StringView classFolder);

}  // namespace tamber

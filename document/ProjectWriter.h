#pragma once

#include "document/Project.h"
#include "platform/RuntimeError.h"
#include "platform/types.h"

namespace tamber {

/// Writes a project file, compressed when the extension is "kvfz". False when it cannot be written;
/// an earlier file is then as before and `why`, when given, tells the reason.
bool SaveProject(StringView path, const Project& project, RuntimeError* why);

/// The cells of a project file. Paths are relative to the folder `baseDir`.
void SaveProjectCells(clsCSV& csv, const Project& project, StringView baseDir);

}  // namespace tamber

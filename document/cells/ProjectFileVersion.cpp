#include "document/cells/ProjectFileVersion.h"

namespace tamber {

thread_local Long ProjectFileVersion = NewestProjectFileVersion;

}  // namespace tamber

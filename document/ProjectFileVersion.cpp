#include "document/ProjectFileVersion.h"

namespace tamber {

thread_local Long ProjectFileVersion = NewestProjectFileVersion;

}  // namespace tamber

#pragma once

#include "app/session/Session.h"
#include "swf/authoring/mdlSWFAuthoring.h"

namespace tamber {

/// What the movie of the open project is built from, but for where it goes and its fonts. The
/// session's project must stay as it is meanwhile.
MovieRequest RequestOf(const Session& session);

}  // namespace tamber

#include "app/operations/MovieBuilding.h"

#include <algorithm>
#include <limits>

#include "app/settings/mdlPrivateProfile.h"
#include "platform/paths.h"
#include "platform/twips.h"

namespace tamber {

namespace {

/// Sizes beyond the range give its ends.
Long ToTwips(Long pixels) {
    return static_cast<Long>(std::clamp<std::int64_t>(std::int64_t{TwipsPerPixel} * pixels,
                                                      std::numeric_limits<Long>::min(),
                                                      std::numeric_limits<Long>::max()));
}

}  // namespace

MovieRequest RequestOf(const Session& session) {
    const Project& project = session.inProject;
    MovieRequest request;
    request.Width = ToTwips(project.MainWidth);
    request.Height = ToTwips(project.MainHeight);
    request.FrameRate = project.FrameRate;
    request.Version = project.SWFVersion;
    request.Library = project.colSymbol.get();
    request.Layers = project.colMainLayer.get();
    request.ProjectFolder = FolderOfFile(session.ProjectFileName);
    request.blProgress = true;
    request.blCompress = mdlPrivateProfile::flgSWFCompress();
    request.blTopToBottom = mdlPrivateProfile::flgTopToBottom();
    return request;
}

}  // namespace tamber

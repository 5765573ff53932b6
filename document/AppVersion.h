#pragma once

#include "platform/types.h"

namespace tamber {

/// The program's version, as project files hold it.
struct AppVersionNumbers {
    Long Major;
    Long Minor;
    Long Revision;
    Long Build;
};

inline constexpr AppVersionNumbers AppVersion{0, 9, 0, 0};

/// "major.minor.revision", and ".build" when the build is not 0.
String VersionText(const AppVersionNumbers& version = AppVersion);

}  // namespace tamber

#pragma once

#include "platform/types.h"

namespace tamber {

/// Name of the player's npm package.
inline constexpr StringView PlayerPackage = u"@ruffle-rs/ruffle";

/// Folder of the installed package: in the `node_modules` of one of the folders above `from` or of
/// the program's, or in those that the system shares. Empty when there is none.
String FindPlayerPackage(StringView from);

/// Copies the player of a package into a folder, which is made. False when a file could not be
/// written.
bool CopyPlayer(StringView package, StringView folder);

}  // namespace tamber

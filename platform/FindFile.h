#pragma once

#include "platform/types.h"

namespace tamber {

/// The file that a path of another system means: the path itself where that file exists, else the
/// one whose names differ in nothing but letter case and the Unicode form of their characters.
/// Empty when there is none, and when several fit.
String FindFile(StringView path);

}  // namespace tamber

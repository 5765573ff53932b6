#pragma once

#include <string_view>

#include "platform/types.h"

namespace tamber {

/// What to write in a version that lacks a token, as the end of a sentence; empty where there is
/// nothing else to write.
StringView VersionAdvice(std::string_view token);

}  // namespace tamber

#pragma once

#include "platform/types.h"

namespace tamber {

/// Movies count lengths in twips.
inline constexpr Long TwipsPerPixel = 20;

}  // namespace tamber

#pragma once

#include "platform/types.h"

namespace tamber {

/// Texts of a movie are UTF-8 from this version on, before it in the ANSI code page.
inline constexpr Long Utf8Version = 6;

/// Whether a text that may be UTF-8 is.
constexpr bool UsesUtf8(Long version, bool blAllowUTF8) {
    return version >= Utf8Version && blAllowUTF8;
}

}  // namespace tamber

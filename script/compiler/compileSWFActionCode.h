#pragma once

#include "platform/types.h"

namespace tamber {

/// Compiles a zero-terminated text, UTF-8 from version 6 on and code page 932 below, for a movie of
/// the version. Nonzero: the buffer holds action records without a zero at their end. Zero: it
/// holds the diagnostics in code page 932, lines ended by LF: "Error: " with what is wrong and
/// further lines of it, "Line N: 'token'", and when there are warnings "Warning: " and theirs. The
/// buffer is the compiler's own and lasts until the next call of the same thread.
int compileSWFActionCode(const char* source, Long version, const Byte** outBytes, Long* outLength);

}  // namespace tamber

#pragma once

#include <cstdint>
#include <string>

#include "platform/types.h"

namespace tamber {

/// One message of the compiler.
struct Diagnostic {
    /// Counted from 1.
    Long Line = 0;
    /// In bytes from the beginning of the source.
    std::uint32_t Offset = 0;
    /// The offending token, in the bytes of the source; empty at the end of the text.
    std::string Token;
    /// For a person.
    String Text;
    /// Line of the { that is not closed, for what is said of one; else 0.
    Long OpenLine = 0;
};

}  // namespace tamber

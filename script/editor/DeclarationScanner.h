#pragma once

#include <vector>

#include "script/editor/ScriptToken.h"

namespace tamber {

/// A name as it stands in a script, and what the script says of it there.
struct ScriptName {
    String Name;
    /// The type that is told, or that a "new" gives it; empty for none.
    String Type{};
    /// Of a function, with the brackets.
    String Arguments{};
    bool blFunction = false;
    /// It stands behind a dot.
    bool blMember = false;
};

/// Reads names from a piece of a script, which begins in a state: what is declared, called or
/// named, but for words of comments and strings. `next` gets the state behind the piece.
std::vector<ScriptName> ScanNames(StringView piece, ScriptState state, ScriptState& next);

bool IsNameStart(char16_t c);
bool IsNamePart(char16_t c);

}  // namespace tamber

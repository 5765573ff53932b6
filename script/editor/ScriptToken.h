#pragma once

#include <optional>

#include "platform/types.h"

namespace tamber {

/// Colours of a script, by their numbers in the table; 4 to 8 are those of the keyword sets.
enum class ScriptColor : Byte { Plain = 0, Comment = 1, Number = 2, Quoted = 3, FirstKeyword = 4 };

/// Colours beside that of plain text.
inline constexpr std::size_t ScriptColorCount = 8;

/// Coloured text of a line or of a part of one; counted from its beginning.
struct ScriptSpan {
    std::size_t Start = 0;
    std::size_t Length = 0;
    Byte Color = 0;
    /// A keyword as its set spells it; empty for others. Lives as long as the sets.
    StringView Spelling{};
    bool operator==(const ScriptSpan&) const = default;
};

/// What a piece of a script begins within.
enum class ScriptState : Byte { Code, LineComment, BlockComment, DoubleString, SingleString };

}  // namespace tamber

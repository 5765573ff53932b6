#pragma once

#include <vector>

#include "platform/types.h"

namespace tamber {

/// A mark that is drawn over a character that is not seen itself.
struct ControlMark {
    /// From the beginning of the line; that of a line end is the line's length.
    std::size_t At = 0;
    char16_t Mark = 0;
    /// Drawn in the colour of line ends, and not in that of indents.
    bool blLineEnd = false;
    bool operator==(const ControlMark&) const = default;
};

/// The marks of a line. `hasLineEnd`: another line follows.
std::vector<ControlMark> ControlMarksOf(StringView line, bool hasLineEnd);

}  // namespace tamber

#pragma once

#include "script/editor/ScriptText.h"

namespace tamber {

/// A change of whole lines, and the selection around them.
struct LineEdit {
    TextEdit Edit;
    std::size_t SelStart = 0;
    std::size_t SelLength = 0;
};

/// What the Tab key puts in: a tab, or blanks.
String TabUnit(Long tabWidth, bool spaces);

/// Puts a unit before each line of a selection that is not empty.
LineEdit InsertUnit(const ScriptText& text, std::size_t selStart, std::size_t selLength,
                    StringView unit);
/// Takes the unit from the front of each line that is not empty. When one of them does not begin
/// with it nothing changes, and the edit removes nothing.
LineEdit RemoveUnit(const ScriptText& text, std::size_t selStart, std::size_t selLength,
                    StringView unit);

/// The unit of the comment commands.
inline constexpr StringView CommentUnit = u"//";

}  // namespace tamber

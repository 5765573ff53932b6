#pragma once

#include <array>
#include <optional>

#include "script/editor/ScriptToken.h"

namespace tamber {

/// The colours of a script, as the file "color.txt" holds them: a line each, "#RRGGBB" or a number
/// with red in the low byte, "&H" or "#" before a hexadecimal one.
class ScriptColors {
public:
    /// From a folder, or its folder "default"; without either no colour is told.
    void Load(StringView folder);
    bool Save(StringView folder) const;
    /// Lines behind the eighth do not count.
    static ScriptColors Parse(StringView text);
    String Text() const;

    /// Red in the low byte; nothing for plain text and for a colour that is not told.
    std::optional<Long> Color(std::size_t color) const;
    void Color(std::size_t color, Long value);

private:
    /// From colour 1 on.
    std::array<std::optional<Long>, ScriptColorCount> colors_{};
};

}  // namespace tamber

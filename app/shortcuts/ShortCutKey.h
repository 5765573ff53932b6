#pragma once

#include <optional>

#include "platform/types.h"

namespace tamber {

/// A key with those held beside it.
struct ShortCutKey {
    bool Shift = false;
    bool Ctrl = false;
    bool Alt = false;
    /// Virtual key code; 0 for no key.
    Long VKey = 0;

    bool IsNone() const { return VKey == 0; }
    /// As a menu shows it: "Ctrl+", "Shift+", "Alt+" and the key's name; empty for none.
    String Text() const;
    /// From such a text; nothing for one that names no key. An empty text is no key.
    static std::optional<ShortCutKey> Parse(StringView text);
    bool operator==(const ShortCutKey&) const = default;
};

/// Name of a virtual key; empty for a code that has none here.
String KeyName(Long vKey);

}  // namespace tamber

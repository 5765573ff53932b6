#pragma once

#include "document/symbols/clsSymbolData.h"

namespace tamber {

/// What a text dialog shows and asks for, by what is entered.
struct TextRules {
    /// The frame of characters to embed is seen.
    static bool ShowsEmbedding(const clsSymbolData& symbol);
    /// The text may take its size from what stands in it.
    static bool CanAutoSize(const clsSymbolData& symbol, Long version);

    /// Looks through a text symbol before it is taken: a password field gets the character that it
    /// shows, which is told, and a field of version 4 loses its automatic size. False when the
    /// dialog must stay, which is told.
    static bool CheckText(clsSymbolData& symbol, Long version);
};

}  // namespace tamber

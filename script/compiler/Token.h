#pragma once

#include "script/compiler/Spot.h"
#include "script/compiler/Symbol.h"

namespace tamber {

/// One token of the source.
struct Token {
    TokenKind Kind = TokenKind::End;
    /// Whether a line end stands before it.
    bool StartsLine = false;
    Spot At;
    /// As it stands in the source.
    std::string_view Text;
    /// The name, the content of a string, a path in slash syntax.
    Symbol* Name = nullptr;
    double Number = 0;
};

}  // namespace tamber

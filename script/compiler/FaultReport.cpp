#include "script/compiler/FaultReport.h"

#include <algorithm>

#include "script/compiler/Lexer.h"

namespace tamber {

void FaultReport::Error(Spot spot, String text) {
    if (!found_.IsFull() && !IsTold(spot, text)) found_.Error(spot, TokenAt(spot), std::move(text));
}

void FaultReport::Warn(Spot spot, String text) {
    found_.Warn(spot, TokenAt(spot), std::move(text));
}

/// The code of some expressions is made twice.
bool FaultReport::IsTold(Spot spot, const String& text) const {
    return std::any_of(
        found_.Errors().begin(), found_.Errors().end(),
        [&](const Diagnostic& error) { return error.Offset == spot.Offset && error.Text == text; });
}

std::string_view FaultReport::TokenAt(Spot spot) const {
    if (spot.Line == 0) return {};
    SymbolTable symbols;
    Diagnostics ignored;
    Lexer lexer(source_.substr(spot.Offset), version_, symbols, ignored);
    Token token = lexer.Next();
    if (token.Kind == TokenKind::Slash) lexer.ReadSlashPath(token, Lexer::PathForm::Rooted);
    return token.Text;
}

}  // namespace tamber

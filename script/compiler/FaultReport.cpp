#include "script/compiler/FaultReport.h"

#include <algorithm>

#include "script/compiler/Lexer.h"

namespace tamber {

void FaultReport::Error(Spot spot, String text) {
    if (found_.IsFull() || IsTold(spot, text)) return;
    found_.Error(spot, TokenAt(spot), std::move(text));
}

void FaultReport::Warn(Spot spot, String text) {
    found_.Warn(spot, TokenAt(spot), std::move(text));
}

/// What a name means may be asked more than once.
bool FaultReport::IsTold(Spot spot, const String& text) const {
    const auto& errors = found_.Errors();
    return std::any_of(errors.begin(), errors.end(), [&](const Diagnostic& error) {
        return error.Offset == spot.Offset && error.Text == text;
    });
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

#include "script/compiler/ClassScanner.h"

#include "script/compiler/Lexer.h"
#include "script/compiler/Versions.h"

namespace tamber {

namespace {

bool MayDefineClasses(std::string_view source, Long version) {
    const auto has = [source](std::string_view word) {
        return source.find(word) != std::string_view::npos;
    };
    return version >= FirstStrictVersion && (has("class") || has("interface"));
}

bool OpensDefinition(const Token& token, TokenKind before) {
    if (token.Kind != TokenKind::Identifier || before == TokenKind::Dot) return false;
    return token.Name->Special == SpecialName::Class ||
           token.Name->Special == SpecialName::Interface;
}

}  // namespace

std::vector<Imports::Path> FindClasses(std::string_view source, Long version,
                                       SymbolTable& symbols) {
    std::vector<Imports::Path> classes;
    if (!MayDefineClasses(source, version)) return classes;
    Diagnostics ignored;
    Lexer lexer(source, version, symbols, ignored);
    TokenKind before = TokenKind::End;
    for (Token token = lexer.Next(); token.Kind != TokenKind::End;) {
        const bool opens = OpensDefinition(token, before);
        before = token.Kind;
        token = lexer.Next();
        if (!opens || token.Kind != TokenKind::Identifier) continue;
        Imports::Path path;
        do {
            path.push_back(token.Name);
            token = lexer.Next();
        } while (token.Kind == TokenKind::Dot &&
                 ((token = lexer.Next()).Kind == TokenKind::Identifier));
        before = TokenKind::Identifier;
        classes.push_back(std::move(path));
    }
    return classes;
}

}  // namespace tamber

#pragma once

#include <string>

#include "script/compiler/Diagnostics.h"
#include "script/compiler/SymbolTable.h"
#include "script/compiler/Token.h"

namespace tamber {

/// Cuts a source into tokens.
class Lexer {
public:
    /// The source must outlive the lexer and the symbols.
    Lexer(std::string_view source, Long version, SymbolTable& symbols, Diagnostics& diagnostics);

    /// The next token. A character that begins none is told and passed over.
    Token Next();
    /// How much a path in slash syntax may look like something else.
    enum class PathForm { Rooted, WithSlash, WithColon, WithColonOrCall };
    /// Where an operand may stand: a path in slash syntax that begins at the token just read:
    /// "/a/b:x" and "../x", by the form also "a/b:x", then "a:x", then "a/play(". False, and
    /// nothing has moved, when there is none.
    bool ReadSlashPath(Token& token, PathForm form);
    /// State that Restore goes back to.
    struct Mark {
        const char* At;
        std::uint32_t Line;
    };
    Mark Save() const { return {at_, line_}; }
    void Restore(const Mark& mark);

private:
    void SkipBlanks(Token& token);
    bool NoPath(const char* begin, const char* end);
    void CheckLength(const Token& token);
    std::size_t WideBlankAt(const char* at) const;
    bool IsNameAt(const char* at) const;
    void SkipLineComment();
    void SkipBlockComment();
    /// Steps over one character, which may be of two bytes in code page 932.
    void Step();
    /// Bytes of the character at a place: 2 for a double byte of code page 932.
    std::size_t WidthAt(const char* at) const;
    Token ReadName(Token token);
    Token ReadNumber(Token token);
    void ReadPrefixed(Token& token, unsigned base);
    void ReadDecimal(Token& token);
    Token ReadString(Token token);
    void ReadEscape(std::string& text, const Token& token);
    std::uint32_t ReadDigits(unsigned base, int count);
    std::uint32_t ReadSecondHalf(std::uint32_t first);
    void AppendCharacter(std::string& text, std::uint32_t code, const Token& token);
    bool ReadPunctuation(Token& token);
    void Take(Token& token, TokenKind kind, std::size_t length);
    char Ahead(std::size_t count) const {
        return static_cast<std::size_t>(end_ - at_) > count ? at_[count] : '\0';
    }

    Spot Here() const { return {line_, static_cast<std::uint32_t>(at_ - begin_)}; }

    const char* begin_;
    const char* at_;
    const char* end_;
    std::uint32_t line_ = 1;
    Long version_;
    bool isUtf8_;
    SymbolTable& symbols_;
    Diagnostics& diagnostics_;
    std::string scratch_;
    /// What was found last to be no path with a colon: no path begins within it.
    std::string_view noPath_;
};

}  // namespace tamber

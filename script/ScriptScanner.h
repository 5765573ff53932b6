#pragma once

#include "platform/types.h"

/// Steps over the text of scripts. Positions count from 1; the one behind the last character is the
/// text's length + 1. A "//" comment ends before a CR or LF, a "/*" comment that is not closed at
/// the text's end. Quoted strings are not known here.
namespace tamber::ScriptScanner {

/// Blank, ideographic space, tab, CR, LF.
constexpr bool IsBlank(char16_t c) {
    return c == u' ' || c == u'\u3000' || c == u'\t' || c == u'\r' || c == u'\n';
}
/// Separators of words besides blanks, quotes, "/" and "*".
constexpr bool IsPunctuation(char16_t c) {
    return StringView(u".,(){}[]=;<>+-^~%&|:?!").find(c) != StringView::npos;
}

constexpr bool AtEnd(StringView script, Long pos) {
    return pos > static_cast<Long>(script.size());
}
/// Character at a position, NUL outside the text.
constexpr char16_t At(StringView script, Long pos) {
    return pos < 1 || AtEnd(script, pos) ? u'\0' : script[static_cast<std::size_t>(pos - 1)];
}

/// First position from `pos` on that is neither blank nor in a comment.
Long SkipBlanks(StringView script, Long pos);
/// As SkipBlanks, and steps over punctuation, "/" and "*" too.
Long SkipToToken(StringView script, Long pos);
/// First blank, stop character or beginning of a comment.
Long FindTokenEnd(StringView script, Long pos, char16_t stop1, char16_t stop2);
/// First ";" outside braces and comments, 0 when there is none.
Long FindStatementEnd(StringView script, Long pos);
/// The "}" that closes a "{" before `pos`, 0 when there is none.
Long FindCloseBrace(StringView script, Long pos);

/// Text from one position up to another.
StringView Between(StringView script, Long from, Long to);
/// The line, from 1, that a position stands in; CR LF, CR and LF each end one.
Long LineOf(StringView script, Long pos);

}  // namespace tamber::ScriptScanner

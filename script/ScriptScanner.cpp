#include "script/ScriptScanner.h"

#include <algorithm>

namespace tamber::ScriptScanner {

namespace {

bool BeginsComment(StringView script, Long pos) {
    const char16_t next = At(script, pos + 1);
    return At(script, pos) == u'/' && (next == u'/' || next == u'*');
}

/// Position behind the comment that begins at `pos`.
Long PassComment(StringView script, Long pos) {
    const auto start = static_cast<std::size_t>(pos + 1);
    const bool line = At(script, pos + 1) == u'/';
    const std::size_t end = line ? script.find_first_of(u"\r\n", start) : script.find(u"*/", start);
    if (end == StringView::npos) return static_cast<Long>(script.size()) + 1;
    return static_cast<Long>(end) + (line ? 1 : 3);
}

/// First position at which `skips` does not hold, outside comments.
template <class Predicate>
Long SkipWhile(StringView script, Long pos, Predicate skips) {
    while (!AtEnd(script, pos)) {
        if (BeginsComment(script, pos))
            pos = PassComment(script, pos);
        else if (skips(At(script, pos)))
            ++pos;
        else
            break;
    }
    return pos;
}

/// First position outside comments at which `finds` holds, given the depth of braces there; 0 when
/// there is none.
template <class Predicate>
Long FindAtDepth(StringView script, Long pos, Long depth, Predicate finds) {
    while (!AtEnd(script, pos)) {
        if (BeginsComment(script, pos)) {
            pos = PassComment(script, pos);
            continue;
        }
        const char16_t c = At(script, pos);
        if (c == u'{') ++depth;
        if (c == u'}') --depth;
        if (finds(c, depth)) return pos;
        ++pos;
    }
    return 0;
}

}  // namespace

Long SkipBlanks(StringView script, Long pos) {
    return SkipWhile(script, pos, IsBlank);
}

Long SkipToToken(StringView script, Long pos) {
    return SkipWhile(script, pos, [](char16_t c) {
        return IsBlank(c) || IsPunctuation(c) || c == u'/' || c == u'*';
    });
}

Long FindTokenEnd(StringView script, Long pos, char16_t stop1, char16_t stop2) {
    for (; !AtEnd(script, pos); ++pos) {
        const char16_t c = At(script, pos);
        if (IsBlank(c) || c == stop1 || c == stop2 || BeginsComment(script, pos)) break;
    }
    return pos;
}

Long FindStatementEnd(StringView script, Long pos) {
    return FindAtDepth(script, pos, 0,
                       [](char16_t c, Long depth) { return c == u';' && depth < 1; });
}

Long FindCloseBrace(StringView script, Long pos) {
    return FindAtDepth(script, pos, 1,
                       [](char16_t c, Long depth) { return c == u'}' && depth == 0; });
}

StringView Between(StringView script, Long from, Long to) {
    const auto start = std::min(static_cast<std::size_t>(std::max(from - 1, 0)), script.size());
    return script.substr(start, static_cast<std::size_t>(std::max(to - from, 0)));
}

Long LineOf(StringView script, Long pos) {
    Long line = 1;
    for (Long i = 1; i < pos && !AtEnd(script, i); ++i) {
        const char16_t c = At(script, i);
        // A CR LF counts once, at its LF.
        if (c == u'\n' || (c == u'\r' && At(script, i + 1) != u'\n')) ++line;
    }
    return line;
}

}  // namespace tamber::ScriptScanner

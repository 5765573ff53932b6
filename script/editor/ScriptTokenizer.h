#pragma once

#include <optional>
#include <vector>

#include "script/editor/KeywordSets.h"
#include "script/editor/ScriptToken.h"

namespace tamber {

/// Finds the colours of a script, a piece at a time.
class ScriptTokenizer {
public:
    explicit ScriptTokenizer(const KeywordSets& keywords) : keywords_(keywords) {}

    /// Walks a piece that begins in a state and returns the one behind it. `spans`, where given,
    /// gets what is coloured. A block comment that the piece is in the midst of is coloured.
    ScriptState Walk(StringView piece, ScriptState state, std::vector<ScriptSpan>* spans) const;

private:
    std::optional<ScriptSpan> SpanOf(StringView word) const;

    const KeywordSets& keywords_;
};

/// Whether the first word of a script is a directive that includes a file, "#include" or "#file".
bool blIncludeFirst(StringView script);

}  // namespace tamber

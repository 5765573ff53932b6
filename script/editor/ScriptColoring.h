#pragma once

#include <vector>

#include "script/editor/ScriptText.h"
#include "script/editor/ScriptTokenizer.h"

namespace tamber {

/// Colours of a script while it is edited. Only what is looked at is walked, and a change only
/// until the colours behind it are again what they were.
class ScriptColoring {
public:
    /// The text must tell each of its changes.
    ScriptColoring(const ScriptText& text, const KeywordSets& keywords);

    /// The whole text, or the keywords, are new.
    void Reset();
    void Changed(const ScriptText::Change& change);

    /// What is coloured of a line, counted from its beginning.
    std::vector<ScriptSpan> SpansOf(std::size_t line);
    /// Last line that the change before may have coloured anew, as far as lines were asked for.
    std::size_t LastChangedLine() const { return lastChanged_; }

private:
    void WalkTo(std::size_t piece);
    bool IsClosedBehind(std::size_t piece) const;

    const ScriptText& text_;
    ScriptTokenizer tokenizer_;
    /// The state that each piece begins in.
    std::vector<ScriptState> states_;
    /// States up to this piece are right; those behind are, too, once the walk meets one of them
    /// behind `dirtyEnd_`.
    std::size_t known_ = 0;
    std::size_t dirtyEnd_ = 0;
    std::size_t lastChanged_ = 0;
    /// Whether a block comment would end in each piece.
    std::vector<Byte> closes_;
};

}  // namespace tamber

#include "script/editor/ScriptColoring.h"

#include <algorithm>

namespace tamber {

namespace {

Byte Closes(const ScriptText::Piece& piece) {
    return piece.Text.find(u"*/") != String::npos ? 1 : 0;
}

}  // namespace

ScriptColoring::ScriptColoring(const ScriptText& text, const KeywordSets& keywords)
    : text_(text), tokenizer_(keywords) {
    Reset();
}

void ScriptColoring::Reset() {
    states_.assign(text_.Pieces().size(), ScriptState::Code);
    known_ = 0;
    dirtyEnd_ = states_.size();
    closes_.resize(states_.size());
    std::transform(text_.Pieces().begin(), text_.Pieces().end(), closes_.begin(), Closes);
}

void ScriptColoring::Changed(const ScriptText::Change& change) {
    const auto at = states_.begin() + static_cast<std::ptrdiff_t>(change.First);
    const std::size_t behind = change.First + change.Removed;
    const bool whole = known_ >= states_.size() - 1;
    // The piece behind the change keeps its state, so that the walk can meet it.
    states_.erase(at, at + static_cast<std::ptrdiff_t>(change.Removed));
    states_.insert(states_.begin() + static_cast<std::ptrdiff_t>(change.First), change.Inserted,
                   ScriptState::Code);
    const std::size_t end = change.First + change.Inserted;
    const std::size_t dirty = whole ? 0 : dirtyEnd_;
    dirtyEnd_ = std::max(end, dirty > behind ? dirty - behind + end : std::min(dirty, end));
    if (change.First <= known_) known_ = change.First == 0 ? 0 : change.First - 1;
    lastChanged_ = text_.LineOfPiece(std::min(end, states_.size()) - 1);
    const auto first = closes_.begin() + static_cast<std::ptrdiff_t>(change.First);
    closes_.erase(first, first + static_cast<std::ptrdiff_t>(change.Removed));
    const auto made = closes_.insert(closes_.begin() + static_cast<std::ptrdiff_t>(change.First),
                                     change.Inserted, Byte{0});
    const auto pieces = text_.Pieces().begin() + static_cast<std::ptrdiff_t>(change.First);
    std::transform(pieces, pieces + static_cast<std::ptrdiff_t>(change.Inserted), made, Closes);
}

/// Makes the states right up to a piece.
void ScriptColoring::WalkTo(std::size_t piece) {
    if (known_ == 0) states_[0] = ScriptState::Code;
    while (known_ < piece) {
        const ScriptState next =
            tokenizer_.Walk(text_.Pieces()[known_].Text, states_[known_], nullptr);
        ++known_;
        const bool same = states_[known_] == next;
        states_[known_] = next;
        if (!same) lastChanged_ = std::max(lastChanged_, text_.LineOfPiece(known_));
        if (same && known_ >= dirtyEnd_) {
            known_ = states_.size() - 1;
            dirtyEnd_ = 0;
        }
    }
}

/// Whether a block comment that is open at the end of a piece is closed somewhere.
bool ScriptColoring::IsClosedBehind(std::size_t piece) const {
    return std::find(closes_.begin() + static_cast<std::ptrdiff_t>(piece) + 1, closes_.end(), 1) !=
           closes_.end();
}

std::vector<ScriptSpan> ScriptColoring::SpansOf(std::size_t line) {
    std::vector<ScriptSpan> spans;
    std::vector<ScriptSpan> found;
    const std::size_t first = text_.PieceOfLine(line);
    std::size_t begin = 0;
    for (std::size_t i = first; i < states_.size() && text_.LineOfPiece(i) == line; ++i) {
        WalkTo(i);
        found.clear();
        const String& piece = text_.Pieces()[i].Text;
        const ScriptState end = tokenizer_.Walk(piece, states_[i], &found);
        // A comment that nothing closes is no comment.
        if (end == ScriptState::BlockComment && !found.empty() && !IsClosedBehind(i))
            found.pop_back();
        for (ScriptSpan& span : found) {
            span.Start += begin;
            spans.push_back(span);
        }
        begin += piece.size();
    }
    return spans;
}

}  // namespace tamber

#include "script/editor/ScriptText.h"

#include <algorithm>
#include <iterator>

#include "script/ScriptScanner.h"

namespace tamber {

namespace {

/// Units of a piece of a long line; a piece that fell below `ShortPiece` takes in the next one.
constexpr std::size_t LongPiece = 4096;
constexpr std::size_t ShortPiece = 1024;
/// A word longer than this is cut, too.
constexpr std::size_t LongestWord = 65536;

/// Units of the line end at `at`, 0 for none.
std::size_t LineEndAt(StringView text, std::size_t at) {
    if (text[at] == u'\n') return 1;
    if (text[at] != u'\r') return 0;
    return at + 1 < text.size() && text[at + 1] == u'\n' ? 2 : 1;
}

/// No token goes on behind this character.
bool PartsTokens(char16_t c) {
    return ScriptScanner::IsBlank(c) || ScriptScanner::IsPunctuation(c);
}

/// How much of a long line is the next piece.
std::size_t CutAt(StringView line) {
    for (std::size_t i = LongPiece; i < line.size() && i < LongestWord; ++i)
        if (PartsTokens(line[i])) return i + 1;
    return std::min(line.size(), LongestWord);
}

}  // namespace

std::vector<ScriptText::Piece> ScriptText::Cut(StringView text, bool last) {
    std::vector<Piece> pieces;
    while (!text.empty()) {
        std::size_t end = 0;
        std::size_t ending = 0;
        while (end < text.size() && (ending = LineEndAt(text, end)) == 0) ++end;
        while (end > 2 * LongPiece) {
            const std::size_t cut = CutAt(text.substr(0, end));
            pieces.push_back({String(text.substr(0, cut)), false});
            text.remove_prefix(cut);
            end -= cut;
        }
        pieces.push_back({String(text.substr(0, end + ending)), ending > 0});
        text.remove_prefix(end + ending);
    }
    if (last && (pieces.empty() || pieces.back().blLineEnd)) pieces.emplace_back();
    return pieces;
}

void ScriptText::Set(StringView text) {
    pieces_ = Cut(text, true);
    Count(0);
}

/// Counts offsets and lines anew from a piece on.
void ScriptText::Count(std::size_t from) {
    offsets_.resize(pieces_.size() + 1);
    lines_.resize(pieces_.size() + 1);
    if (from == 0) offsets_[0] = lines_[0] = 0;
    for (std::size_t i = from; i < pieces_.size(); ++i) {
        offsets_[i + 1] = offsets_[i] + pieces_[i].Text.size();
        lines_[i + 1] = lines_[i] + (pieces_[i].blLineEnd ? 1 : 0);
    }
}

/// A line that `text` ends in does so within the pieces from `behind` on.
bool ScriptText::GoesOn(StringView text, std::size_t behind) const {
    if (behind >= pieces_.size()) return false;
    if (text.empty() || LineEndAt(text, text.size() - 1) == 0) return true;
    return text.back() == u'\r' && pieces_[behind].Text.starts_with(u'\n');
}

ScriptText::Change ScriptText::Apply(const TextEdit& edit, std::vector<Piece>* taken) {
    const std::size_t start = std::min(edit.Start, Length());
    const std::size_t end = start + std::min(edit.Removed, Length() - start);
    std::size_t first = PieceAt(start);
    // A line end before the change may become one with what comes.
    if (first > 0 && start == offsets_[first]) --first;
    std::size_t behind = PieceAt(end) + 1;
    String text = Between(offsets_[first], start) + edit.Inserted + Between(end, offsets_[behind]);
    // The last piece taken ends where one ended before, so that no token is cut there.
    bool goesOn = GoesOn(text, behind);
    while (goesOn) {
        text += pieces_[behind++].Text;
        goesOn = text.size() < ShortPiece && GoesOn(text, behind);
    }
    std::vector<Piece> made = Cut(text, behind == pieces_.size());
    const Change change{first, behind - first, made.size()};
    const auto begin = pieces_.begin() + static_cast<std::ptrdiff_t>(first);
    const auto stop = pieces_.begin() + static_cast<std::ptrdiff_t>(behind);
    if (taken != nullptr)
        taken->assign(std::make_move_iterator(begin), std::make_move_iterator(stop));
    const std::size_t same = std::min(change.Removed, change.Inserted);
    std::move(made.begin(), made.begin() + static_cast<std::ptrdiff_t>(same), begin);
    const auto rest = begin + static_cast<std::ptrdiff_t>(same);
    if (change.Removed > same) pieces_.erase(rest, stop);
    if (change.Inserted > same)
        pieces_.insert(rest,
                       std::make_move_iterator(made.begin() + static_cast<std::ptrdiff_t>(same)),
                       std::make_move_iterator(made.end()));
    Count(first);
    return change;
}

String ScriptText::Whole() const {
    return Between(0, Length());
}

String ScriptText::Between(std::size_t start, std::size_t end) const {
    String text;
    if (start >= end) return text;
    text.reserve(end - start);
    for (std::size_t i = PieceAt(start); i < pieces_.size() && offsets_[i] < end; ++i) {
        const std::size_t from = start > offsets_[i] ? start - offsets_[i] : 0;
        const std::size_t to = std::min(end - offsets_[i], pieces_[i].Text.size());
        text.append(pieces_[i].Text, from, to - from);
    }
    return text;
}

std::size_t ScriptText::PieceAt(std::size_t offset) const {
    const auto behind = std::upper_bound(offsets_.begin(), offsets_.end() - 1, offset);
    return static_cast<std::size_t>(behind - offsets_.begin()) - 1;
}

std::size_t ScriptText::PieceOfLine(std::size_t line) const {
    const auto found =
        std::lower_bound(lines_.begin(), lines_.end() - 1, std::min(line, lines_.back()));
    return static_cast<std::size_t>(found - lines_.begin());
}

std::size_t ScriptText::EndOfLine(std::size_t line) const {
    if (line + 1 >= LineCount()) return Length();
    const Piece& last = pieces_[PieceOfLine(line + 1) - 1];
    const bool two = last.Text.size() > 1 && last.Text[last.Text.size() - 2] == u'\r' &&
                     last.Text.back() == u'\n';
    return OffsetOfLine(line + 1) - (two ? 2 : 1);
}

}  // namespace tamber

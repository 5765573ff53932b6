#include "script/editor/TextSearch.h"

#include "platform/text.h"

namespace tamber {

TextSearch::TextSearch(StringView wanted, bool matchCase)
    : wanted_(matchCase ? String(wanted) : FoldCase(wanted)), matchCase_(matchCase) {}

std::optional<std::size_t> TextSearch::Next(StringView text, std::size_t from) const {
    if (wanted_.empty() || from > text.size()) return std::nullopt;
    const String folded = matchCase_ ? String() : FoldCase(text.substr(from));
    const std::size_t at = matchCase_ ? text.find(wanted_, from) : folded.find(wanted_);
    if (at == StringView::npos) return std::nullopt;
    return matchCase_ ? at : from + at;
}

std::optional<std::size_t> TextSearch::Previous(StringView text, std::size_t until) const {
    if (wanted_.empty() || until < wanted_.size()) return std::nullopt;
    const StringView before = text.substr(0, until);
    const String folded = matchCase_ ? String() : FoldCase(before);
    const std::size_t at = matchCase_ ? before.rfind(wanted_) : folded.rfind(wanted_);
    if (at == StringView::npos) return std::nullopt;
    return at;
}

void SearchHistory::Add(StringView wanted) {
    if (wanted.empty()) return;
    std::erase(texts_, wanted);
    texts_.emplace(texts_.begin(), wanted);
    if (texts_.size() > Most) texts_.pop_back();
}

}  // namespace tamber

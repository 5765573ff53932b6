#include "script/editor/ScriptNames.h"

#include <algorithm>

#include "platform/text.h"

namespace tamber {

namespace {

using Given = std::vector<std::pair<String, Long>>;

/// Counts a form that a name is given in; one that is given nowhere any more goes.
void CountGiven(Given& given, const String& text, Long by) {
    if (text.empty()) return;
    const auto found = std::find_if(given.begin(), given.end(),
                                    [&](const auto& one) { return one.first == text; });
    if (found == given.end())
        given.emplace_back(text, by);
    else if ((found->second += by) == 0)
        given.erase(found);
}

String OrderOf(const String& name) {
    return FoldCase(name) + u'\0' + name;
}

}  // namespace

String ScriptNames::Entry::MostOf(const Given& given) {
    const auto most =
        std::max_element(given.begin(), given.end(),
                         [](const auto& a, const auto& b) { return a.second < b.second; });
    return most == given.end() ? String() : most->first;
}

void ScriptNames::Reset(const ScriptText& text) {
    entries_.clear();
    order_.clear();
    states_.clear();
    ScriptState state = ScriptState::Code;
    for (const ScriptText::Piece& piece : text.Pieces()) {
        states_.push_back(state);
        Count(ScanNames(piece.Text, state, state), 1);
    }
}

void ScriptNames::Changed(const ScriptText& text, const ScriptText::Change& change,
                          const std::vector<ScriptText::Piece>& taken) {
    ScriptState ignored{};
    ScriptState state = ScriptState::Code;
    if (change.First > 0)
        ScanNames(text.Pieces()[change.First - 1].Text, states_[change.First - 1], state);
    for (std::size_t i = 0; i < change.Removed; ++i)
        Count(ScanNames(taken[i].Text, states_[change.First + i], ignored), -1);
    const auto first = states_.begin() + static_cast<std::ptrdiff_t>(change.First);
    const auto at = states_.erase(first, first + static_cast<std::ptrdiff_t>(change.Removed));
    std::vector<ScriptState> made;
    for (std::size_t i = 0; i < change.Inserted; ++i) {
        made.push_back(state);
        Count(ScanNames(text.Pieces()[change.First + i].Text, state, state), 1);
    }
    states_.insert(at, made.begin(), made.end());
}

void ScriptNames::Count(const std::vector<ScriptName>& names, Long by) {
    for (const ScriptName& name : names) {
        const auto [found, isNew] = entries_.try_emplace(name.Name);
        if (isNew) order_.emplace(OrderOf(name.Name), &*found);
        Entry& entry = found->second;
        entry.Count += by;
        if (name.blMember) entry.Members += by;
        if (name.blFunction) entry.Functions += by;
        CountGiven(entry.Types, name.Type, by);
        CountGiven(entry.Arguments, name.Arguments, by);
        if (entry.Count > 0) continue;
        order_.erase(OrderOf(name.Name));
        entries_.erase(found);
    }
}

const ScriptNames::Entry* ScriptNames::Find(const String& name) const {
    const auto found = entries_.find(name);
    return found == entries_.end() ? nullptr : &found->second;
}

void ScriptNames::ForEach(
    StringView prefix,
    const std::function<void(const String& name, const Entry& entry)>& visit) const {
    const String folded = FoldCase(prefix);
    for (auto at = order_.lower_bound(folded); at != order_.end() && at->first.starts_with(folded);
         ++at)
        visit(at->second->first, at->second->second);
}

}  // namespace tamber

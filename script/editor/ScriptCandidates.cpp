#include "script/editor/ScriptCandidates.h"

#include <algorithm>

#include "platform/text.h"
#include "script/editor/PlayerHints.h"

namespace tamber {

namespace {

/// How far back from the caret a call or a path may begin, UTF-16 units.
constexpr std::size_t LookBack = 4096;
/// Classes that extend each other, so that a circle ends.
constexpr int DeepestBase = 32;

constexpr StringView ClipType = u"MovieClip";

using KindOf = Candidate::KindOf;

std::size_t NameStart(StringView text) {
    std::size_t start = text.size();
    while (start > 0 && IsNamePart(text[start - 1])) --start;
    return start;
}

/// The names with dots between them that a text ends in; brackets of a call end it.
StringView PathBefore(StringView text) {
    std::size_t start = text.size();
    while (start > 0 && (IsNamePart(text[start - 1]) || text[start - 1] == u'.')) --start;
    return text.substr(start);
}

StringView LastPart(StringView path) {
    return path.substr(path.rfind(u'.') + 1);
}

StringView FrontPart(StringView path) {
    const std::size_t dot = path.rfind(u'.');
    return dot == StringView::npos ? StringView() : path.substr(0, dot);
}

/// Whether the end of a line lies within a string.
bool EndsInString(StringView line) {
    char16_t quote = 0;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (quote != 0 && line[i] == u'\\')
            ++i;
        else if (quote != 0 ? line[i] == quote : line[i] == u'"' || line[i] == u'\'')
            quote = quote != 0 ? u'\0' : line[i];
    }
    return quote != 0;
}

void AddPlayer(std::vector<Candidate>& candidates, const PlayerHints::Members& members,
               KindOf kind) {
    for (const auto& [key, member] : members)
        candidates.push_back({member.Name, member.Arguments.empty() ? kind : KindOf::Function,
                              member.Arguments.empty() ? member.Type : member.Arguments});
}

const PlayerHints::Member* FindIn(const PlayerHints::Members& members, StringView name) {
    const auto found = members.find(FoldCase(name));
    return found == members.end() ? nullptr : &found->second;
}

Candidate CandidateOf(const String& name, const ScriptNames::Entry& entry) {
    if (entry.Functions > 0) return {name, KindOf::Function, entry.ArgumentsText()};
    return {name, entry.Members == entry.Count ? KindOf::Member : KindOf::Variable, entry.Type()};
}

/// The open bracket of the call that a text ends in, and the commas behind it.
struct OpenCall {
    std::size_t Bracket;
    std::size_t Commas;
};

std::optional<OpenCall> OpenCallOf(StringView code) {
    int depth = 0;
    std::size_t commas = 0;
    for (std::size_t i = code.size(); i-- > 0;) {
        const char16_t c = code[i];
        if (c == u')' || c == u']' || c == u'}') ++depth;
        if (c == u',' && depth == 0) ++commas;
        if (c == u';' && depth == 0) return std::nullopt;
        if (c != u'(' && c != u'[' && c != u'{') continue;
        if (--depth >= 0) continue;
        if (c != u'(') return std::nullopt;
        return OpenCall{i, commas};
    }
    return std::nullopt;
}

}  // namespace

ScriptClass ScriptClass::Read(StringView text) {
    ScriptClass read;
    ScriptText pieces;
    pieces.Set(text);
    ScriptState state = ScriptState::Code;
    for (const ScriptText::Piece& piece : pieces.Pieces()) {
        const bool declares = piece.Text.find(u"var ") != String::npos ||
                              piece.Text.find(u"function ") != String::npos;
        for (ScriptName& name : ScanNames(piece.Text, state, state)) {
            if (name.blMember || !declares) continue;
            if (!name.blFunction && piece.Text.find(u"var " + name.Name) == String::npos) continue;
            read.Members.push_back({std::move(name.Name),
                                    name.blFunction ? KindOf::Function : KindOf::Member,
                                    name.blFunction ? name.Arguments : name.Type});
        }
        const std::size_t extends = piece.Text.find(u" extends ");
        if (!declares && read.Extends.empty() && extends != String::npos) {
            StringView base = StringView(piece.Text).substr(extends + 9);
            const auto part = [](char16_t c) { return IsNamePart(c) || c == u'.'; };
            base = base.substr(
                0, static_cast<std::size_t>(std::find_if_not(base.begin(), base.end(), part) -
                                            base.begin()));
            read.Extends = base;
        }
    }
    return read;
}

std::size_t ScriptCandidates::WordStart(std::size_t caret) const {
    const String before = Before(caret);
    return std::min(caret, text_.Length()) - (before.size() - NameStart(before));
}

String ScriptCandidates::Before(std::size_t caret) const {
    caret = std::min(caret, text_.Length());
    const std::size_t line = text_.OffsetOfLine(text_.LineAt(caret));
    return text_.Between(std::max(line, caret - std::min(caret, LookBack)), caret);
}

CandidateList ScriptCandidates::At(std::size_t caret) const {
    const String before = Before(caret);
    const std::size_t start = NameStart(before);
    const StringView prefix = StringView(before).substr(start);
    Candidates candidates;
    if (start > 0 && before[start - 1] == u'.')
        AddMembers(candidates, PathBefore(StringView(before).substr(0, start - 1)));
    else if (EndsInString(before))
        AddStrings(candidates);
    else
        AddNames(candidates, prefix);
    if (!prefix.empty())
        std::erase_if(candidates, [&](const Candidate& candidate) {
            return !StartsWithNoCase(candidate.Text, prefix);
        });
    CandidateList list(std::move(candidates));
    list.SetString(prefix);
    return list;
}

std::optional<String> ScriptCandidates::InstanceType(const String& name) const {
    const auto found =
        std::find_if(project_.Instances.begin(), project_.Instances.end(),
                     [&](const Candidate& instance) { return instance.Text == name; });
    if (found == project_.Instances.end()) return std::nullopt;
    return found->Detail;
}

String ScriptCandidates::TypeOf(StringView path) const {
    const String name(LastPart(path));
    if (name == u"this" || name == u"_root" || name == u"_parent" || name.starts_with(u"_level"))
        return String(ClipType);
    if (const auto* entry = names_.Find(name))
        if (String type = entry->Type(); !type.empty()) return type;
    if (const auto type = InstanceType(name)) return *type;
    if (const StringView type = PlayerHints::ClassOfSuffix(name); !type.empty())
        return String(type);
    const StringView front = FrontPart(path);
    if (front.empty()) return {};
    const auto* member = FindIn(PlayerHints::MembersOf(TypeOf(front)), name);
    return member != nullptr ? member->Type : String();
}

void ScriptCandidates::AddMembersOf(Candidates& candidates, String type) const {
    for (int depth = 0; depth < DeepestBase; ++depth) {
        const auto own = project_.Classes.find(type);
        if (own == project_.Classes.end()) break;
        candidates.insert(candidates.end(), own->second.Members.begin(), own->second.Members.end());
        type = own->second.Extends;
    }
    AddPlayer(candidates, PlayerHints::MembersOf(type), KindOf::Member);
    if (type == ClipType)
        candidates.insert(candidates.end(), project_.Instances.begin(), project_.Instances.end());
}

void ScriptCandidates::AddMembers(Candidates& candidates, StringView path) const {
    for (String& name : PlayerHints::Within(path))
        candidates.push_back({std::move(name), KindOf::Class});
    AddPlayer(candidates, PlayerHints::StaticsOf(String(path)), KindOf::Member);
    if (String type = TypeOf(path); !type.empty()) AddMembersOf(candidates, std::move(type));
    if (!candidates.empty()) return;
    // Of what is not known, whatever this script takes from anything.
    names_.ForEach({}, [&](const String& name, const ScriptNames::Entry& entry) {
        if (entry.Members > 0) candidates.push_back(CandidateOf(name, entry));
    });
}

void ScriptCandidates::AddNames(Candidates& candidates, StringView prefix) const {
    names_.ForEach(prefix, [&](const String& name, const ScriptNames::Entry& entry) {
        // The word at the caret itself is no help.
        const bool own = entry.Count == 1 && name == prefix;
        if (!own && entry.Members < entry.Count) candidates.push_back(CandidateOf(name, entry));
    });
    AddPlayer(candidates, PlayerHints::Globals(), KindOf::Function);
    for (const String& name : PlayerHints::Classes()) candidates.push_back({name, KindOf::Class});
    for (const auto& [name, known] : project_.Classes) candidates.push_back({name, KindOf::Class});
    candidates.insert(candidates.end(), project_.Instances.begin(), project_.Instances.end());
    for (std::size_t set = 0; set < KeywordSets::Count; ++set)
        for (const String& word : keywords_.Set(set).Words)
            candidates.push_back({word, KindOf::Keyword});
}

void ScriptCandidates::AddStrings(Candidates& candidates) const {
    for (const auto* names : {&project_.Labels, &project_.Linkages, &project_.Instances})
        candidates.insert(candidates.end(), names->begin(), names->end());
}

String ScriptCandidates::ArgumentsOf(StringView path) const {
    const String name(LastPart(path));
    const StringView front = FrontPart(path);
    if (!front.empty()) {
        if (const auto* member = FindIn(PlayerHints::StaticsOf(String(front)), name))
            return member->Arguments;
        Candidates members;
        AddMembersOf(members, TypeOf(front));
        for (const Candidate& member : members)
            if (member.Text == name && member.Kind == KindOf::Function) return member.Detail;
    }
    if (const auto* entry = names_.Find(name))
        if (String arguments = entry->ArgumentsText(); !arguments.empty()) return arguments;
    if (!front.empty()) return {};
    const auto* global = FindIn(PlayerHints::Globals(), name);
    return global != nullptr ? global->Arguments : String();
}

std::optional<CallHint> ScriptCandidates::HintAt(std::size_t caret) const {
    caret = std::min(caret, text_.Length());
    String code = text_.Between(caret - std::min(caret, LookBack), caret);
    // Brackets and commas of strings do not count; those of the line at the caret are told apart.
    bool inString = false;
    char16_t quote = 0;
    for (char16_t& c : code) {
        if (c == u'\n' || c == u'\r') inString = false;
        const bool marks = inString ? c == quote : c == u'"' || c == u'\'';
        if (marks) quote = c;
        if (inString || marks) c = u' ';
        if (marks) inString = !inString;
    }
    const auto call = OpenCallOf(code);
    if (!call) return std::nullopt;
    StringView front = StringView(code).substr(0, call->Bracket);
    front = front.substr(0, front.find_last_not_of(u" \t") + 1);
    const StringView path = PathBefore(front);
    if (path.empty()) return std::nullopt;
    String arguments = ArgumentsOf(path);
    if (arguments.empty()) return std::nullopt;
    return CallHint{String(LastPart(path)), std::move(arguments), call->Commas};
}

}  // namespace tamber

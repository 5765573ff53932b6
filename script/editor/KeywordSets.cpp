#include "script/editor/KeywordSets.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

#include "platform/TextEncoding.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

namespace {

/// Bytes of a file that is read; the rest of a longer one is no list of words.
constexpr std::uint64_t LongestFile = 4 << 20;

String NameOf(std::size_t set) {
    return u"keyword" + ToText(static_cast<Long>(set) + 1) + u".txt";
}

std::vector<String> LinesOf(StringView text) {
    std::vector<String> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(u'\n'), text.size());
        lines.push_back(Trim(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

}  // namespace

String OwnOrDefault(StringView folder, StringView name) {
    for (const StringView place : {StringView(u""), StringView(u"default")}) {
        const String path =
            JoinPath(place.empty() ? String(folder) : JoinPath(folder, place), name);
        if (FileSize(path)) return path;
    }
    return {};
}

bool KeywordSet::Add(StringView word) {
    const auto same = [&](const String& known) { return EqualsNoCase(known, word); };
    if (word.empty() || std::any_of(Words.begin(), Words.end(), same)) return false;
    Words.emplace_back(word);
    return true;
}

bool KeywordSet::Remove(StringView word) {
    return std::erase_if(Words, [&](const String& known) { return known == word; }) > 0;
}

KeywordSet KeywordSet::Parse(StringView text) {
    KeywordSet set;
    std::unordered_set<String> known;
    bool first = true;
    for (String& line : LinesOf(ReplaceAll(WithCrLf(String(text)), u"\r", u""))) {
        if (std::exchange(first, false))
            set.Name = std::move(line);
        else if (!line.empty() && known.insert(FoldCase(line)).second)
            set.Words.push_back(std::move(line));
    }
    return set;
}

String KeywordSet::Text() const {
    String text = Name + u"\r\n";
    for (const String& word : Words) text += word + u"\r\n";
    return text;
}

void KeywordSets::Load(StringView folder) {
    for (std::size_t i = 0; i < Count; ++i) {
        Bytes bytes;
        const String path = OwnOrDefault(folder, NameOf(i));
        const bool read = !path.empty() && ReadFileBytes(path, bytes, 0, LongestFile);
        sets_[i] = read ? KeywordSet::Parse(DecodeText(bytes)) : KeywordSet();
    }
    Index();
}

bool KeywordSets::Save(StringView folder) const {
    for (std::size_t i = 0; i < Count; ++i)
        if (!WriteFileBytes(EncodeAnsi(sets_[i].Text()), JoinPath(folder, NameOf(i)))) return false;
    return true;
}

void KeywordSets::Set(std::size_t index, KeywordSet set) {
    sets_[index] = std::move(set);
    Index();
}

void KeywordSets::Index() {
    words_.clear();
    longest_ = 0;
    for (std::size_t i = 0; i < Count; ++i)
        for (const String& word : sets_[i].Words) {
            words_.try_emplace(FoldCase(word), Hit{i, word});
            longest_ = std::max(longest_, word.size());
        }
}

std::optional<KeywordSets::Hit> KeywordSets::Find(StringView word) const {
    if (word.size() > longest_) return std::nullopt;
    const auto found = words_.find(FoldCase(word));
    if (found == words_.end()) return std::nullopt;
    return found->second;
}

}  // namespace tamber

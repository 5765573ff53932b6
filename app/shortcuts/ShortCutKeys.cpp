#include "app/shortcuts/ShortCutKeys.h"

#include <algorithm>

#include "platform/IniFile.h"
#include "platform/UserInterface.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

namespace {

constexpr StringView FileName = u"shortCutKey.ini";
constexpr std::uint64_t LongestFile = 1 << 20;
constexpr Long HighestKey = 255;

/// Names between brackets at the beginning of lines, in their order.
std::vector<String> SectionsOf(StringView text) {
    std::vector<String> names;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(u"\r\n"), text.size());
        const String line = Trim(text.substr(0, end));
        const std::size_t close = line.find(u']');
        if (line.starts_with(u'[') && close != String::npos)
            names.push_back(line.substr(1, close - 1));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return names;
}

std::vector<ShortCutKeys::Entry> ReadEntries(StringView path) {
    Bytes bytes;
    if (!ReadFileBytes(path, bytes, 0, LongestFile)) return {};
    const std::vector<String> names = SectionsOf(DecodeAnsi(bytes));
    const IniFile ini(std::move(bytes));
    std::vector<ShortCutKeys::Entry> entries;
    for (const String& name : names) {
        const auto number = [&](StringView key) {
            return LeadingNumber(ini.Value(name, key).value_or(u""));
        };
        ShortCutKeys::Entry entry{name, ini.Value(name, u"Pane").value_or(u""), {}};
        const Long vKey = number(u"VKey");
        if (vKey > 0 && vKey <= HighestKey)
            entry.Key = {number(u"Shift") != 0, number(u"Ctrl") != 0, number(u"Alt") != 0, vKey};
        entries.push_back(std::move(entry));
    }
    return entries;
}

bool SameCommand(const ShortCutKeys::Entry& entry, StringView command) {
    return EqualsNoCase(entry.Command, command);
}

/// Both count at once in some place.
bool Meet(StringView paneA, StringView paneB) {
    return paneA.empty() || paneB.empty() || EqualsNoCase(paneA, paneB);
}

}  // namespace

void ShortCutKeys::Reset(StringView folder) {
    entries_ = ReadEntries(JoinPath(JoinPath(folder, u"default"), FileName));
    Take(entries_);
}

void ShortCutKeys::Load(StringView folder) {
    entries_ = ReadEntries(JoinPath(JoinPath(folder, u"default"), FileName));
    const std::vector<Entry> own = ReadEntries(JoinPath(folder, FileName));
    std::vector<Entry> order;
    const auto isOwn = [&](const Entry& entry) {
        return std::any_of(own.begin(), own.end(),
                           [&](const Entry& one) { return SameCommand(one, entry.Command); });
    };
    order = own;
    std::copy_if(entries_.begin(), entries_.end(), std::back_inserter(order),
                 [&](const Entry& entry) { return !isOwn(entry); });
    Take(order);
}

/// Gives the commands the keys that were read, in this order.
void ShortCutKeys::Take(const std::vector<Entry>& read) {
    const std::vector<Entry> keys = read;
    for (Entry& entry : entries_) entry.Key = {};
    for (const Entry& one : keys) {
        const auto known = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
            return SameCommand(entry, one.Command);
        });
        if (known != entries_.end() && !IsTaken(*known, one.Key)) known->Key = one.Key;
    }
}

bool ShortCutKeys::Save(StringView folder) const {
    IniFile ini;
    for (const Entry& entry : entries_) {
        const auto put = [&](StringView key, Long value) {
            ini.Value(entry.Command, key, ToText(value));
        };
        put(u"Shift", entry.Key.Shift ? 1 : 0);
        put(u"Ctrl", entry.Key.Ctrl ? 1 : 0);
        put(u"Alt", entry.Key.Alt ? 1 : 0);
        put(u"VKey", entry.Key.VKey);
    }
    return MakeFolders(folder) && WriteFileBytes(ini.Text(), JoinPath(folder, FileName));
}

const ShortCutKeys::Entry* ShortCutKeys::Find(StringView command) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
        return SameCommand(entry, command);
    });
    return found == entries_.end() ? nullptr : &*found;
}

ShortCutKey ShortCutKeys::KeyOf(StringView command) const {
    const Entry* entry = Find(command);
    return entry != nullptr ? entry->Key : ShortCutKey();
}

String ShortCutKeys::CommandOf(const ShortCutKey& key, StringView pane) const {
    if (key.IsNone()) return {};
    const Entry* ofWindow = nullptr;
    for (const Entry& entry : entries_) {
        if (entry.Key != key) continue;
        if (entry.Pane.empty()) ofWindow = &entry;
        if (!entry.Pane.empty() && EqualsNoCase(entry.Pane, pane)) return entry.Command;
    }
    return ofWindow != nullptr ? ofWindow->Command : String();
}

bool ShortCutKeys::IsTaken(const Entry& entry, const ShortCutKey& key) const {
    if (key.IsNone()) return false;
    return std::any_of(entries_.begin(), entries_.end(), [&](const Entry& other) {
        return &other != &entry && other.Key == key && Meet(other.Pane, entry.Pane);
    });
}

bool ShortCutKeys::Assign(StringView command, const ShortCutKey& key) {
    const Entry* entry = Find(command);
    if (entry == nullptr) return false;
    if (IsTaken(*entry, key)) {
        ShowMessage(u"このショートカットは既に使用されています。", ProgramTitle,
                    MessageIcon::Warning);
        return false;
    }
    entries_[static_cast<std::size_t>(entry - entries_.data())].Key = key;
    return true;
}

String ShortCutKeys::MenuText(StringView label, StringView command) const {
    const String key = KeyOf(command).Text();
    return key.empty() ? String(label) : String(label) + u"\t" + key;
}

}  // namespace tamber

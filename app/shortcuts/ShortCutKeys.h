#pragma once

#include <vector>

#include "app/shortcuts/ShortCutKey.h"

namespace tamber {

/// The keys of the commands, as `shortCutKey.ini` holds them: a section for each command with the
/// keys `Shift`, `Ctrl` and `Alt` ("0" or "1") and `VKey`. The file of that name in the folder
/// "default" tells which commands there are, and with a key `Pane` which of them count only while
/// that pane has the focus.
class ShortCutKeys {
public:
    struct Entry {
        /// A command and, where it has several entries, "_" and the argument of one.
        String Command;
        /// Empty for the whole window.
        String Pane;
        ShortCutKey Key;
    };

    /// Reads the file of a folder, and that of its folder "default" for commands which the other
    /// does not name. Of two commands with one key the one that is read later has none.
    void Load(StringView folder);
    /// Writes all keys into a folder. False when that cannot be.
    bool Save(StringView folder) const;
    /// Those of the folder "default".
    void Reset(StringView folder);

    const std::vector<Entry>& All() const { return entries_; }
    /// No key for a command that is not known.
    ShortCutKey KeyOf(StringView command) const;
    /// The command of a key in a pane: the pane's own, else the window's. Empty for none.
    String CommandOf(const ShortCutKey& key, StringView pane) const;
    /// Gives a command a key, or none. One that is in use where the command counts is refused,
    /// which is told, and the command keeps its own.
    bool Assign(StringView command, const ShortCutKey& key);
    /// A label with the command's key behind a tab.
    String MenuText(StringView label, StringView command) const;

private:
    const Entry* Find(StringView command) const;
    /// Another command has the key where this one would count.
    bool IsTaken(const Entry& entry, const ShortCutKey& key) const;
    void Take(const std::vector<Entry>& read);

    std::vector<Entry> entries_;
};

}  // namespace tamber

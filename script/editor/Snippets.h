#pragma once

#include <map>

#include "platform/types.h"

namespace tamber {

/// Texts to insert, by their short cuts.
class Snippets {
public:
    /// Compares short cuts without regard to case.
    struct ByFoldedCase {
        bool operator()(const String& a, const String& b) const;
    };
    using Table = std::map<String, String, ByFoldedCase>;

    /// Reads "snippet.csv" of a folder, or of its folder "default"; without either there are none.
    /// A file that is none is told, and there are none either.
    void Load(StringView folder);
    bool Save(StringView folder) const;

    const Table& All() const { return table_; }
    /// The text of a short cut; null for none.
    const String* Find(const String& shortCut) const;
    /// Asks before another text of the same short cut is written over. False when it stays.
    bool Set(const String& shortCut, String text);
    void Remove(const String& shortCut) { table_.erase(shortCut); }

    /// A text as it is inserted into a line that begins with `indent`: each of its further lines
    /// begins with that, too, and line ends at its end are gone.
    static String Indented(StringView text, StringView indent);
    /// Blanks, tabs and ideographic spaces that a line begins with.
    static StringView IndentOf(StringView line);

private:
    Table table_;
};

}  // namespace tamber

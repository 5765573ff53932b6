#pragma once

#include <functional>
#include <map>
#include <unordered_map>
#include <vector>

#include "script/editor/DeclarationScanner.h"
#include "script/editor/ScriptText.h"

namespace tamber {

/// The names of a script while it is edited.
class ScriptNames {
public:
    /// What the script says of a name, in all its places together.
    struct Entry {
        /// Places that it stands in.
        Long Count = 0;
        /// Of these, behind a dot.
        Long Members = 0;
        Long Functions = 0;
        /// Types and arguments that it was given, each with the number of places.
        std::vector<std::pair<String, Long>> Types{};
        std::vector<std::pair<String, Long>> Arguments{};

        /// The one given most often; empty for none.
        String Type() const { return MostOf(Types); }
        String ArgumentsText() const { return MostOf(Arguments); }

    private:
        static String MostOf(const std::vector<std::pair<String, Long>>& given);
    };

    void Reset(const ScriptText& text);
    /// `taken`: the pieces that the change took out.
    void Changed(const ScriptText& text, const ScriptText::Change& change,
                 const std::vector<ScriptText::Piece>& taken);

    /// Null for a name that the script does not have.
    const Entry* Find(const String& name) const;
    /// Calls `visit` with each name that begins with a prefix in whatever case, in their order.
    void ForEach(StringView prefix,
                 const std::function<void(const String& name, const Entry& entry)>& visit) const;

private:
    void Count(const std::vector<ScriptName>& names, Long by);

    using Entries = std::unordered_map<String, Entry>;

    Entries entries_;
    /// The entries by the name in lower case, a NUL, and the name itself.
    std::map<String, const Entries::value_type*> order_;
    /// The state that each piece was read in.
    std::vector<ScriptState> states_;
};

}  // namespace tamber

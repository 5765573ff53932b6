#pragma once

#include <map>
#include <optional>
#include <vector>

#include "script/editor/CandidateList.h"
#include "script/editor/KeywordSets.h"
#include "script/editor/ScriptNames.h"
#include "script/editor/ScriptText.h"

namespace tamber {

/// A class of the library or of a class file.
struct ScriptClass {
    String Extends{};
    std::vector<Candidate> Members{};

    /// Reads what a class body, or the file of a class, declares.
    static ScriptClass Read(StringView text);
};

/// Names that the project tells to its scripts.
struct ProjectNames {
    /// With their types as details.
    std::vector<Candidate> Instances;
    std::vector<Candidate> Labels;
    std::vector<Candidate> Linkages;
    /// By their whole names.
    std::map<String, ScriptClass> Classes;
};

/// The function whose arguments stand at the caret.
struct CallHint {
    String Name;
    /// With the brackets.
    String Arguments;
    /// The argument at the caret, from 0.
    std::size_t Argument = 0;
};

/// Finds what may be put in at the caret of a script.
class ScriptCandidates {
public:
    /// All must outlive this.
    ScriptCandidates(const ScriptText& text, const ScriptNames& names, const KeywordSets& keywords,
                     const ProjectNames& project)
        : text_(text), names_(names), keywords_(keywords), project_(project) {}

    /// Where the word before the caret begins, UTF-16 units from the text's beginning.
    std::size_t WordStart(std::size_t caret) const;
    /// Behind a dot the members of what stands before it, in a string the names that the project
    /// has for one, else all names. What the word before the caret begins is chosen.
    CandidateList At(std::size_t caret) const;
    /// Nothing where the caret stands in no call, or in one of a function that is not known.
    std::optional<CallHint> HintAt(std::size_t caret) const;
    /// The class that a path of names leads to; empty when it is not known.
    String TypeOf(StringView path) const;

private:
    using Candidates = std::vector<Candidate>;

    /// The line up to the caret, as much of it as is looked at.
    String Before(std::size_t caret) const;
    void AddMembers(Candidates& candidates, StringView path) const;
    void AddMembersOf(Candidates& candidates, String type) const;
    void AddNames(Candidates& candidates, StringView prefix) const;
    void AddStrings(Candidates& candidates) const;
    String ArgumentsOf(StringView path) const;
    std::optional<String> InstanceType(const String& name) const;

    const ScriptText& text_;
    const ScriptNames& names_;
    const KeywordSets& keywords_;
    const ProjectNames& project_;
};

}  // namespace tamber

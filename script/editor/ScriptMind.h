#pragma once

#include "script/editor/ScriptCandidates.h"
#include "script/editor/ScriptColoring.h"

namespace tamber {

/// What an editor knows of the script that is typed in it.
class ScriptMind {
public:
    /// Both must outlive this.
    ScriptMind(const KeywordSets& keywords, const ProjectNames& project)
        : coloring_(text_, keywords), candidates_(text_, names_, keywords, project) {
        names_.Reset(text_);
    }
    ScriptMind(const ScriptMind&) = delete;
    ScriptMind& operator=(const ScriptMind&) = delete;

    const ScriptText& Text() const { return text_; }
    ScriptColoring& Coloring() { return coloring_; }
    const ScriptCandidates& Candidates() const { return candidates_; }
    const ScriptNames& Names() const { return names_; }

    void Set(StringView text) {
        text_.Set(text);
        coloring_.Reset();
        names_.Reset(text_);
    }
    void Apply(const TextEdit& edit) {
        std::vector<ScriptText::Piece> taken;
        const ScriptText::Change change = text_.Apply(edit, &taken);
        coloring_.Changed(change);
        names_.Changed(text_, change, taken);
    }

private:
    ScriptText text_;
    ScriptColoring coloring_;
    ScriptNames names_;
    ScriptCandidates candidates_;
};

}  // namespace tamber

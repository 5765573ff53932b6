#pragma once

#include <functional>
#include <vector>

#include "platform/TextEncoding.h"
#include "platform/types.h"

namespace tamber {

/// Puts the files that `#include` and `#file` name into a script.
class ScriptPreprocessor {
public:
    /// Folder of the project, empty for one that was never saved.
    String ProjectFolder;
    /// When set, each included text is compiled by itself and left out; false when it does not
    /// compile.
    std::function<bool(const String& text)> CompileInclude;

    /// Expands a script in place. Relative names are looked for in `baseDir` (unless it is empty),
    /// in the project's folder, in the program's "include" folder and in the program's folder.
    /// Returns 0, the line of a directive that failed, or that line negated when its file is
    /// missing; the script then stays as it is. Lines count from 1 in the script given.
    Long PreprocessScript(String& script, StringView baseDir);

    /// Behind a failure the file concerned: the one that is missing, or the files from the
    /// outermost to the one that was to be included again, each but the last with a comma behind
    /// it. Empty when an included text did not compile.
    const String& Chain() const { return chain_; }

    /// Whether the failure was that files include each other too deeply, or make too long a text.
    bool IsExceeded() const { return isExceeded_; }

    /// Whether the last script had files put into it.
    bool HasIncluded() const { return !included_.empty(); }
    /// The line of the last script given that a line of what was made of it comes from: that of
    /// the directive for what was included.
    Long OuterLine(Long line) const;

private:
    friend class ScriptExpansion;

    /// The lines that an included text begins and ends on, the line of its directive, and the line
    /// that the directive ends on.
    struct IncludedLines {
        Long First;
        Long Last;
        Long Directive;
        Long Behind;
    };

    String chain_;
    std::vector<IncludedLines> included_;
    std::size_t expandedSize_ = 0;
    bool isExceeded_ = false;
};

}  // namespace tamber

#pragma once

#include <functional>

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

private:
    friend class ScriptExpansion;

    String chain_;
    std::size_t expandedSize_ = 0;
};

}  // namespace tamber

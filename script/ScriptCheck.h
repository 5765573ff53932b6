#pragma once

#include "platform/types.h"
#include "script/ScriptCompiler.h"

namespace tamber {

/// What a script belongs to, by which its check differs.
enum class ScriptKind { Frame, Button, Clip };

/// Outcome of a check.
struct ScriptCheckResult {
    bool Ok = true;
    Long Line = 0;    ///< line of the fault, from 1; 0 when there is none
    Long Offset = 0;  ///< UTF-16 units up to the fault, where no file is included
    String Token;     ///< the text that the compiler complains of
    String Message;   ///< for a person, lines parted by CR LF
};

/// Looks through a script as a generation would, for a movie of a version, and tells its first
/// fault, with the line of the script given; a fault in an included file is one of the line that
/// includes it. Included texts of frame scripts are compiled by themselves too. `hasInitBlocks`:
/// whether the script is one of frame 1, from which init blocks are taken.
ScriptCheckResult CheckScript(StringView script, ScriptKind kind, Long version,
                              StringView projectFolder, bool hasInitBlocks = true);
/// The same behind a generation with this compiler, which knows the fault already.
ScriptCheckResult CheckScript(StringView script, ScriptKind kind, ScriptCompiler& compiler,
                              StringView projectFolder, bool hasInitBlocks = true);

}  // namespace tamber

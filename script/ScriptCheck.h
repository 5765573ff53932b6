#pragma once

#include "platform/types.h"

namespace tamber {

/// What a script belongs to, by which its check differs.
enum class ScriptKind { Frame, Button, Clip };

/// Outcome of a check.
struct ScriptCheckResult {
    bool Ok = true;
    Long Line = 0;   ///< line of the fault, from 1; 0 when there is none
    String Message;  ///< for a person, lines parted by CR LF
};

/// Looks through a script as a generation would, for a movie of a version, and tells its first
/// fault, with the line of the script given; a fault in an included file is one of the line that
/// includes it. Included texts of frame scripts are compiled by themselves too. `hasInitBlocks`:
/// whether the script is one of frame 1, from which init blocks are taken.
ScriptCheckResult CheckScript(StringView script, ScriptKind kind, Long version,
                              StringView projectFolder, bool hasInitBlocks = true);

}  // namespace tamber

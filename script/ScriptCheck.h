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
/// fault. Included texts of frame scripts are compiled by themselves, and so are the init blocks in
/// them, so that lines stay right.
ScriptCheckResult CheckScript(StringView script, ScriptKind kind, Long version,
                              StringView projectFolder);

}  // namespace tamber

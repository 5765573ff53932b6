#pragma once

#include <vector>

#include "platform/types.h"
#include "script/EventBlock.h"
#include "script/ScriptCompiler.h"
#include "swf/tags/SwfEventActions.h"

namespace tamber {

/// What a compiler's diagnostics tell.
struct CompilerDiagnostic {
    Long Line = 0;  ///< of the script, from 1
    String Header;  ///< what is wrong
    String Token;   ///< the text that it is about
    String Tail;    ///< warnings
};

/// Compiles a script to action records, without the closing zero, for a movie of a version. False
/// when it has a fault: `result` then holds the compiler's diagnostics. Below version 6, and with
/// `unicodeAllowed` false, its texts are in the code page, else in UTF-8.
bool CompileActionScript(Bytes& result, StringView text, Long version, bool unicodeAllowed);

/// Takes the diagnostics apart; line 1 of what was compiled is `firstLine` of the script.
CompilerDiagnostic ParseCompilerDiagnostic(ByteView bytes, Long firstLine);

/// Compiles the event blocks of a script, those without actions and those for events that the
/// version does not have left out. False when one has a fault; there are no actions then.
bool CompileEventBlocks(std::vector<SwfEventActions>& result, StringView script, EventScript kind,
                        ScriptCompiler& compiler);

}  // namespace tamber

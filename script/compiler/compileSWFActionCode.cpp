#include "script/compiler/compileSWFActionCode.h"

#include "script/compiler/ActionCompiler.h"
#include "script/compiler/Diagnostics.h"

namespace tamber {

int compileSWFActionCode(const char* source, Long version, const Byte** outBytes, Long* outLength) {
    thread_local Bytes buffer;
    CompiledScript script = ActionCompiler(version).Compile(source);
    const bool isCompiled = script.IsCompiled();
    if (isCompiled) {
        buffer = std::move(script.Actions);
    } else {
        const std::string text = DiagnosticText(script.Errors, script.Warnings, version);
        buffer.assign(text.begin(), text.end());
    }
    *outBytes = buffer.data();
    *outLength = static_cast<Long>(buffer.size());
    return isCompiled ? 1 : 0;
}

}  // namespace tamber

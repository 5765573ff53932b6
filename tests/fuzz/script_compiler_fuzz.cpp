#include <string_view>

#include "script/compiler/ActionCompiler.h"
#include "script/compiler/ActionDisassembler.h"
#include "script/compiler/Diagnostics.h"

namespace {

/// A script with an error says where; one without is code that can be listed to its end.
void Check(const tamber::CompiledScript& script, std::string_view source, tamber::Long version) {
    if (script.IsCompiled()) {
        tamber::ActionDisassembler disassembler(version);
        disassembler.List(script.Actions);
        if (disassembler.IsDamaged()) __builtin_trap();
        return;
    }
    for (const tamber::Diagnostic& error : script.Errors)
        if (error.Line < 1 || static_cast<std::size_t>(error.Line) > source.size() + 1 ||
            error.Text.empty())
            __builtin_trap();
    if (tamber::DiagnosticText(script.Errors, script.Warnings, version).empty()) __builtin_trap();
}

}  // namespace

// The first byte chooses the version; the rest is the script, and is listed as if it were code.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const tamber::Long version = 4 + data[0] % 5;
    const std::string_view source(reinterpret_cast<const char*>(data + 1), size - 1);
    Check(tamber::ActionCompiler(version).Compile(source), source, version);
    tamber::ActionDisassembler(version).List({data + 1, size - 1});
    return 0;
}

#include "script/compiler/ActionCompiler.h"

#include <algorithm>

#include "script/compiler/ActionEncoder.h"
#include "script/compiler/CodeGenerator.h"
#include "script/compiler/Parser.h"

namespace tamber {

namespace {

constexpr Long FirstVersion = 4;
constexpr Long LastVersion = 8;

}  // namespace

ActionCompiler::ActionCompiler(Long version)
    : version_(std::clamp(version, FirstVersion, LastVersion)) {}

/// Each statement becomes code as soon as it is read, so that the nodes of one only are held.
CompiledScript ActionCompiler::Compile(std::string_view source) const {
    SymbolTable symbols;
    Arena arena;
    Diagnostics diagnostics;
    Parser parser(source, version_, symbols, arena, diagnostics);
    CodeGenerator generator(symbols, version_, diagnostics);
    while (const Node* statement = parser.NextStatement()) {
        if (!diagnostics.HasErrors()) generator.Generate(*statement);
        arena.Reset();
    }
    CompiledScript result;
    if (!diagnostics.HasErrors()) {
        ActionEncoder encoder(symbols, version_, diagnostics);
        result.Actions = encoder.Encode(generator.Functions(), generator.Main());
    }
    diagnostics.Sort();
    result.Errors = diagnostics.Errors();
    result.Warnings = diagnostics.Warnings();
    if (!result.IsCompiled()) result.Actions.clear();
    return result;
}

}  // namespace tamber

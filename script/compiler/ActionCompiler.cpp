#include "script/compiler/ActionCompiler.h"

#include <algorithm>

#include "script/compiler/ActionEncoder.h"
#include "script/compiler/ClassScanner.h"
#include "script/compiler/CodeGenerator.h"
#include "script/compiler/Parser.h"

namespace tamber {

namespace {

constexpr Long FirstVersion = 4;
constexpr Long LastVersion = 8;

}  // namespace

ActionCompiler::ActionCompiler(Long version)
    : version_(std::clamp(version, FirstVersion, LastVersion)) {}

/// Each statement becomes code as soon as it is read, so that the nodes of one only are held. One
/// that was not read whole is no statement to make code of; of the others the generator may have
/// something to say.
CompiledScript ActionCompiler::Compile(std::string_view source) const {
    SymbolTable symbols;
    Arena arena;
    Diagnostics diagnostics;
    Parser parser(source, version_, symbols, arena, diagnostics);
    FaultReport faults(source, version_);
    CodeGenerator generator(symbols, version_, SymbolTable::HashOf(source), faults);
    for (const Imports::Path& path : FindClasses(source, version_, symbols)) {
        parser.Announce(path);
        generator.Announce(path);
    }
    while (const Node* statement = parser.NextStatement()) {
        if (parser.IsSound()) generator.Generate(*statement);
        arena.Reset();
    }
    CompiledScript result;
    if (!diagnostics.HasErrors() && !faults.Found().HasErrors()) {
        ActionEncoder encoder(symbols, version_, faults);
        result.Actions = encoder.Encode(generator.Functions(), generator.Main());
    }
    diagnostics.Merge(faults.Found());
    result.Errors = diagnostics.Errors();
    result.Warnings = diagnostics.Warnings();
    if (!result.IsCompiled()) result.Actions.clear();
    return result;
}

}  // namespace tamber

#include "script/compiler/ActionCompiler.h"

#include <algorithm>
#include <vector>

#include "script/compiler/ActionEncoder.h"
#include "script/compiler/ClassScanner.h"
#include "script/compiler/CodeGenerator.h"
#include "script/compiler/Parser.h"

namespace tamber {

namespace {

constexpr Long FirstVersion = 4;
constexpr Long LastVersion = 8;

/// A statement becomes code as soon as it is read, so that the nodes of one only are held. One that
/// was not read whole is no statement to make code of; of the others the generator may have
/// something to say.
void GenerateEach(Parser& parser, CodeGenerator& generator, Arena& arena) {
    while (const Node* statement = parser.NextStatement()) {
        if (parser.IsSound()) generator.Generate(*statement);
        arena.Reset();
    }
}

/// What a name means in or before a class may depend on what stands behind.
void GenerateAll(Parser& parser, CodeGenerator& generator, ClassTable& classes) {
    std::vector<const Node*> statements;
    while (const Node* statement = parser.NextStatement())
        if (parser.IsSound()) statements.push_back(statement);
    for (const ClassNode* definition : parser.Classes()) classes.Define(*definition);
    generator.GenerateClasses();
    for (const Node* statement : statements) generator.Generate(*statement);
}

}  // namespace

ActionCompiler::ActionCompiler(Long version)
    : version_(std::clamp(version, FirstVersion, LastVersion)) {}

CompiledScript ActionCompiler::Compile(std::string_view source) const {
    SymbolTable symbols;
    Arena arena;
    Diagnostics diagnostics;
    Parser parser(source, version_, symbols, arena, diagnostics);
    FaultReport faults(source, version_);
    ClassTable classes;
    CodeGenerator generator(symbols, version_, SymbolTable::HashOf(source), classes, faults);
    const std::vector<Imports::Path> paths = FindClasses(source, version_, symbols);
    for (const Imports::Path& path : paths) parser.Announce(path);
    if (paths.empty())
        GenerateEach(parser, generator, arena);
    else
        GenerateAll(parser, generator, classes);
    CompiledScript result;
    if (!diagnostics.HasErrors() && !faults.Found().HasErrors()) {
        ActionEncoder encoder(symbols, version_, faults);
        result.Actions =
            encoder.Encode({&generator.Functions(), &generator.Classes(), &generator.Main()});
    }
    diagnostics.Merge(faults.Found());
    result.Errors = diagnostics.Errors();
    result.Warnings = diagnostics.Warnings();
    if (!result.IsCompiled()) result.Actions.clear();
    return result;
}

}  // namespace tamber

#include <algorithm>
#include <utility>

#include "script/compiler/CodeGenerator.h"
#include "script/compiler/Versions.h"

namespace tamber {

namespace {

enum FunctionFlag : std::uint16_t {
    PreloadThis = 0x01,
    SuppressThis = 0x02,
    PreloadArguments = 0x04,
    SuppressArguments = 0x08,
    PreloadSuper = 0x10,
    SuppressSuper = 0x20,
    PreloadRoot = 0x40,
    PreloadParent = 0x80,
    PreloadGlobal = 0x100,
};

}  // namespace

void CodeGenerator::Function(const Node& node) {
    const FunctionNode& function = *node.Function;
    FunctionState outer = function_;
    function_ = FunctionState{&function};
    function_.FirstScope = scopes_.size();
    ActionCode::FunctionRecord record{function.Name, function.At};
    record.HasRegisters = version_ >= FirstRegisterVersion;
    if (record.HasRegisters) ChoosePreloads(function_, record);
    parameters_.clear();
    const NameNode* name = function.Declared;
    for (std::uint32_t i = 0; i < function.ParameterCount && name != nullptr; ++i) {
        parameters_.push_back({name->Name, name->Register});
        name = name->Next;
    }
    const std::size_t number = code_->BeginFunction(record, parameters_);
    if (record.HasRegisters) function_.Record = number;
    Bind(function);
    Statements(function.Functions.First);
    Statements(function.Body);
    Unbind(function);
    code_->EndFunction();
    function_ = outer;
}

/// The action leaves the value of a function without a name only; one with a name becomes a
/// variable.
void CodeGenerator::FunctionValue(const Node& node) {
    Function(node);
    if (node.Function->Name == nullptr) return;
    code_->PushText(node.Function->Name);
    code_->Emit(Opcode::GetVariable);
}

/// Values that the function starts with go into the first registers, in this order; those that it
/// does not use are not made. Where names are made at run time, all are made, by their names.
void CodeGenerator::ChoosePreloads(FunctionState& state, ActionCode::FunctionRecord& record) const {
    const FunctionNode& function = *state.Node;
    record.RegisterCount = std::max<Byte>(function.RegisterCount, 1);
    if (function.NeedsNames) return;
    Byte next = 1;
    unsigned flags = 0;
    const auto choose = [&](bool isUsed, Byte& number, unsigned preload, unsigned suppress) {
        flags |= isUsed ? preload : suppress;
        if (isUsed) number = next++;
    };
    choose(function.UsesThis || function.IsMethod, state.This, PreloadThis, SuppressThis);
    choose(function.UsesArguments, state.Arguments, PreloadArguments, SuppressArguments);
    choose(function.UsesSuper, state.Super, PreloadSuper, SuppressSuper);
    choose(function.UsesRoot, state.Root, PreloadRoot, 0);
    choose(function.UsesParent, state.Parent, PreloadParent, 0);
    choose(function.UsesGlobal, state.Global, PreloadGlobal, 0);
    record.Flags = static_cast<std::uint16_t>(flags);
}

/// While the function is made, variables lie in their registers, or have their names only, whatever
/// they are in the functions around, and hide the members of a class.
void CodeGenerator::Bind(const FunctionNode& function) {
    for (NameNode* name = function.Declared; name != nullptr; name = name->Next) {
        name->OuterRegister = std::exchange(name->Name->Register, name->Register);
        name->OuterAlias = std::exchange(name->Name->Alias, nullptr);
        ++name->Name->Declarations;
    }
}

void CodeGenerator::Unbind(const FunctionNode& function) {
    for (const NameNode* name = function.LastDeclared; name != nullptr; name = name->Previous) {
        name->Name->Register = name->OuterRegister;
        name->Name->Alias = name->OuterAlias;
        --name->Name->Declarations;
    }
}

}  // namespace tamber

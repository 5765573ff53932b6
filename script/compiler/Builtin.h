#pragma once

#include <string_view>

#include "script/compiler/Node.h"
#include "script/compiler/Opcode.h"

namespace tamber {

/// How a call of a built-in function becomes code.
enum class BuiltinForm : Byte {
    /// The arguments in their order, then the action.
    Action,
    /// The clip that the argument names, then the action.
    OfClip,
    GotoAndPlay,
    GotoAndStop,
    GetUrl,
    LoadMovie,
    LoadMovieNum,
    LoadVariables,
    LoadVariablesNum,
    UnloadMovie,
    UnloadMovieNum,
    FsCommand,
    Print,
    PrintNum,
    PrintAsBitmap,
    PrintAsBitmapNum,
    Duplicate,
    StartDrag,
    GetProperty,
    SetProperty,
    Evaluate,
    SetNamed,
    GetVersion,
};

/// A function that has an action, or a documented form, of its own.
struct Builtin {
    std::string_view Name;
    BuiltinForm Form = BuiltinForm::Action;
    Byte MinArguments = 0;
    Byte MaxArguments = 0;
    Opcode Action = Opcode::End;
    /// Whether the code leaves a value on the stack.
    bool HasValue = false;
    Byte MinVersion = 4;

    bool Takes(std::uint32_t arguments) const {
        return arguments >= MinArguments && arguments <= MaxArguments;
    }
};

/// Whether it is a call of `eval`, which names a place.
inline bool IsEvaluation(const Node& node) {
    if (node.Kind != NodeKind::Call || node.Count != 1 || node.A->Kind != NodeKind::Name)
        return false;
    const Builtin* builtin = node.A->Name->BuiltinEntry;
    return builtin != nullptr && builtin->Form == BuiltinForm::Evaluate;
}

}  // namespace tamber

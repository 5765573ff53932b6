#pragma once

#include <string_view>

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
};

}  // namespace tamber

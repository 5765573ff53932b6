#pragma once

#include <string_view>

#include "script/compiler/TokenKind.h"

namespace tamber {

struct Builtin;

/// Names that the language knows without a keyword of their own.
enum class SpecialName : Byte {
    None,
    True,
    False,
    Null,
    Undefined,
    NewLine,
    Super,
    Arguments,
    Root,
    Parent,
    Global,
    Eval,
    Class,
    Interface,
    Dynamic,
    Intrinsic,
    Import,
    Extends,
    Implements,
    Public,
    Private,
    Static,
    Get,
    Set,
};

/// A text of the program, a name or a string: each different one stands once.
struct Symbol {
    static constexpr Byte NoRegister = 0;
    static constexpr Byte NoProperty = 0xFF;
    /// Bytes of a text at most: it stands in a record of 64 KB, with what else that holds.
    static constexpr std::size_t MaxText = 65000;
    static constexpr StringView TooLong = u"名前や文字列が長すぎます。64KB までです。";

    std::string_view Text;
    std::uint32_t Hash = 0;
    /// Number in the order of arrival.
    std::uint32_t Index = 0;
    /// Pushes of it in the code.
    std::uint32_t Uses = 0;
    /// Place in the constant pool, or -1.
    std::int32_t PoolIndex = -1;
    /// What a word means as a token: Identifier for all that are no keywords.
    TokenKind Kind = TokenKind::Identifier;
    SpecialName Special = SpecialName::None;
    /// Number of a movie clip's property.
    Byte Property = NoProperty;
    /// Whether Kind, Special, Property and BuiltinEntry have been looked up.
    bool IsClassified = false;
    /// First version whose players know the name, or 0.
    Byte NeededVersion = 0;
    const Builtin* BuiltinEntry = nullptr;
    /// Whether the script gives a variable of the timeline that name.
    bool IsOwn = false;
    /// Whether it sets such a variable, or a member of the timeline or the global object.
    bool IsSet = false;
    /// Whether code of the script may mean something of its own by the name.
    bool IsOfScript() const { return IsOwn || IsSet; }

    /// Register that holds the variable in the function whose code is being made.
    Byte Register = NoRegister;
    /// Name that stands for it in the code, within a block that catches something by it; null for
    /// its own.
    Symbol* Alias = nullptr;
    /// Functions around the code being made that declare the name.
    std::uint16_t Declarations = 0;
    /// Last function in which it was declared, and in which it must be reached by its name.
    std::uint32_t DeclaredIn = 0;
    std::uint32_t NamedIn = 0;
};

}  // namespace tamber

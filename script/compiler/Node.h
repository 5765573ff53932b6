#pragma once

#include "script/compiler/Spot.h"
#include "script/compiler/Symbol.h"

namespace tamber {

struct FunctionNode;
struct ClassNode;

enum class NodeKind : Byte {
    // Expressions.
    Number,
    Text,
    Boolean,
    Null,
    Undefined,
    Name,
    SlashPath,
    This,
    Super,
    Member,
    Index,
    Call,
    New,
    Unary,
    Binary,
    Conditional,
    Assign,
    Increment,
    Function,
    Object,
    Array,
    Comma,
    // Statements.
    Empty,
    Expression,
    Block,
    Var,
    If,
    While,
    DoWhile,
    For,
    ForIn,
    Return,
    Break,
    Continue,
    Switch,
    Case,
    With,
    TellTarget,
    IfFrameLoaded,
    Try,
    Catch,
    Throw,
    Class,
};

enum class Operator : Byte {
    None,
    Add,
    Subtract,
    Multiply,
    Divide,
    Modulo,
    BitAnd,
    BitOr,
    BitXor,
    Left,
    Right,
    UnsignedRight,
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
    Equal,
    NotEqual,
    StrictEqual,
    StrictNotEqual,
    And,
    Or,
    WordAnd,
    WordOr,
    StringAdd,
    StringEqual,
    StringNotEqual,
    StringLess,
    StringLessEqual,
    StringGreater,
    StringGreaterEqual,
    InstanceOf,
    // Of one operand.
    Not,
    BitNot,
    Plus,
    Minus,
    TypeOf,
    Void,
    Delete,
};

/// A piece of the program as it was read. What the fields hold, by kind:
///
/// | Kind | A, B, C, D | other |
/// |---|---|---|
/// | Name | | Name |
/// | Member | object | Name |
/// | Name, Member of an import | D: the short name | Flag |
/// | Index | object, key | |
/// | Call, New | callee, first argument (a list by Next) | Count arguments |
/// | Unary; Binary | operand; left, right | Op |
/// | Conditional, If | condition, then, else | |
/// | Assign | target, value | Op: None for plain |
/// | Increment | target | Op: Add or Subtract; Flag: the value is the new one |
/// | Object | first value (a list by Next, each with its key in D) | Count |
/// | Array, Comma, Block | first (a list by Next) | Count |
/// | Boolean | | Flag |
/// | Expression, Return, Throw | value or null | |
/// | Var | value or null; B: null, or the path that stands for the name | Name |
/// | Function | A: null, or the path where it is kept | Function; Flag: a statement |
/// | While, DoWhile | condition, body | |
/// | For | start, condition, step, body | |
/// | ForIn | target (a Var or an expression), object, body | |
/// | Switch | value, first case | |
/// | Case | value (null: default), first statement | |
/// | With | object, body | Count: the jumps out of it |
/// | TellTarget | target, body | Flag: others stand within |
/// | IfFrameLoaded | frame, body | |
/// | Try | body, first handler, last | Count: jumps out of both; Flag: targets within |
/// | Catch | type (null: all), body | Name; Flag: it may be looked for at run time |
struct Node {
    /// Jumps that leave a With or Try, in its Count.
    static constexpr std::uint32_t EscapesByBreak = 1;
    static constexpr std::uint32_t EscapesByContinue = 2;
    static constexpr std::uint32_t EscapesByReturn = 4;

    NodeKind Kind = NodeKind::Empty;
    Operator Op = Operator::None;
    bool Flag = false;
    Spot At;
    std::uint32_t Count = 0;
    union {
        Symbol* Name = nullptr;
        double Value;
        FunctionNode* Function;
        ClassNode* Class;
    };
    Node* A = nullptr;
    Node* B = nullptr;
    Node* C = nullptr;
    Node* D = nullptr;
    Node* Next = nullptr;
};

/// A list of nodes that is filled at its end.
struct NodeList {
    Node* First = nullptr;
    Node* Last = nullptr;
    std::uint32_t Count = 0;

    void Add(Node* node) {
        (First == nullptr ? First : Last->Next) = node;
        Last = node;
        ++Count;
    }
};

/// A name in a list, of parameters or declared variables.
struct NameNode {
    Symbol* Name = nullptr;
    /// Register that holds it, or Symbol::NoRegister.
    Byte Register = Symbol::NoRegister;
    /// The name's register in the function around, while the code of this one is made.
    Byte OuterRegister = Symbol::NoRegister;
    /// As the register, the name's alias around.
    Symbol* OuterAlias = nullptr;
    /// Function around, in which the name was declared before; 0 for none.
    std::uint32_t OuterDeclaration = 0;
    NameNode* Previous = nullptr;
    NameNode* Next = nullptr;
};

/// A function of the program.
struct FunctionNode {
    /// Null for one without a name.
    Symbol* Name = nullptr;
    Spot At;
    /// Differs from function to function, from 1.
    std::uint32_t Number = 0;
    std::uint32_t Depth = 0;
    NameNode* Declared = nullptr;
    NameNode* LastDeclared = nullptr;
    std::uint32_t ParameterCount = 0;
    /// Registers in use, with register 0; 0 for a function without registers of its own.
    Byte RegisterCount = 0;
    /// Functions declared in the body, made before its first statement.
    NodeList Functions;
    Node* Body = nullptr;
    bool UsesThis = false;
    bool UsesSuper = false;
    bool CallsSuper = false;
    bool UsesArguments = false;
    bool UsesRoot = false;
    bool UsesParent = false;
    bool UsesGlobal = false;
    /// Whether variables can be reached by names that are made at run time, or through `with`.
    bool NeedsNames = false;
    /// Whether it belongs to a class and its own names reach the members.
    bool IsMethod = false;
    /// Whether it is a static function of a class.
    bool IsStatic = false;
};

enum class MemberKind : Byte { Field, Method, Getter, Setter };

/// A member of a class.
struct MemberNode {
    Symbol* Name = nullptr;
    MemberKind Kind = MemberKind::Field;
    bool IsStatic = false;
    Spot At;
    /// Of a method: a Function node; of a field: its value or null.
    Node* Value = nullptr;
    MemberNode* Next = nullptr;
};

/// A class or an interface.
struct ClassNode {
    /// Member nodes over a name; the parts of a dotted name.
    Node* Name = nullptr;
    Node* Base = nullptr;
    NodeList Interfaces;
    bool IsInterface = false;
    /// Whether the player has it, so that no code is made of what tells of it.
    bool IsIntrinsic = false;
    Spot At;
    Node* Constructor = nullptr;
    MemberNode* FirstMember = nullptr;
    MemberNode* LastMember = nullptr;
};

}  // namespace tamber

#pragma once

#include <vector>

#include "script/compiler/ConstantFolder.h"
#include "script/compiler/Imports.h"
#include "script/compiler/Lexer.h"
#include "script/compiler/Node.h"

namespace tamber {

/// Reads a program statement by statement. The nodes lie in the arena given.
class Parser {
public:
    /// Statements, brackets, operators of one operand and the like that may stand in each other.
    static constexpr int MaxDepth = 400;

    Parser(std::string_view source, Long version, SymbolTable& symbols, Arena& arena,
           Diagnostics& diagnostics);

    /// Tells of a class that the source defines.
    void Announce(const Imports::Path& path) { imports_.Announce(path); }
    /// The next statement at the top, or null at the end. After an error it goes on with the next
    /// statement that can be read; after too many it ends.
    Node* NextStatement();
    /// The classes that were read without an error so far.
    const std::vector<const ClassNode*>& Classes() const { return classes_; }
    /// Whether the statement that was given last was read without an error.
    bool IsSound() const { return isSound_; }

private:
    /// Unwinds to the nearest list of statements.
    struct SyntaxError {};
    /// Ends the run.
    struct HopelessError {};
    /// Counts what stands in each other.
    class Level;
    class State;

    // Tokens.
    void Advance() { token_ = lexer_.Next(); }
    bool Is(TokenKind kind) const { return token_.Kind == kind; }
    bool IsSpecial(SpecialName name) const {
        return token_.Kind == TokenKind::Identifier && token_.Name->Special == name;
    }
    bool Accept(TokenKind kind);
    void Expect(TokenKind kind, StringView what);
    Token Peek();
    [[noreturn]] void Fail(const String& text);
    void Complain(Spot spot, std::string_view token, String text);
    /// Whether nothing was wrong since there were so many errors.
    bool IsSoundSince(std::size_t errors) const {
        return !diagnostics_.IsFull() && diagnostics_.Errors().size() == errors;
    }
    void NeedVersion(Long version, std::string_view token, Spot spot);
    Symbol* TakeName(StringView what);
    Symbol* TakeMemberName();
    void Recover(int literals);
    void SkipToStatement(int literals);
    Node* Make(NodeKind kind, Spot spot);

    // Statements.
    Node* GuardedStatement();
    Node* Statement();
    Node* SimpleStatement();
    Node* StrayPart(const String& text);
    Node* ExpressionStatement();
    bool IsToldOfAhead();
    static bool IsMetadata(const Node& expression);
    Node* Block();
    static Node* FunctionsFirst(const NodeList& list);
    Node* Grouped(const NodeList& list, Spot spot);
    Node* LoopBody();
    Node* Body();
    void StatementsUntilBrace(NodeList& list);
    Node* GuardedBlock(Node* statement, Node* (Parser::*read)());
    void NoteEscape(NodeKind kind);
    void WarnOfUnreachable(const Node* last);
    void WarnUnreachable();
    void EndStatement();
    Node* VarStatement();
    Node* Variable();
    Node* IfStatement();
    Node* Condition();
    Node* WhileStatement();
    Node* DoStatement();
    Node* ForStatement();
    Node* ForInRest(Node* target, Spot spot);
    Node* ForRest(Node* start, Spot spot);
    Node* JumpStatement();
    Node* ReturnStatement();
    Node* SwitchStatement();
    Node* GuardedClause();
    Node* CaseClause();
    void SkipToClause();
    void NoteSearch();
    Node* WithStatement();
    void NoteTarget();
    Node* TellTargetStatement();
    Node* IfFrameLoadedStatement();
    Node* TryStatement();
    Node* Handlers();
    Node* GuardedHandler();
    Node* Handler();
    Node* CaughtType();
    Node* ThrowStatement();
    Node* FunctionStatement();
    Node* ImportStatement();
    void SkipType();

    // Expressions.
    Node* Expression();
    Node* Assignment();
    Node* ConditionalRest(Node* condition);
    Node* BinaryChain(int lowest);
    Node* Unary();
    Node* UnaryOperator(Operator op);
    Node* IncrementBefore();
    Node* Postfix();
    Node* PostfixOf(Node* node);
    Node* IncrementAfter(Node* target);
    Node* NewExpression();
    Node* Primary();
    Node* Name();
    /// What a name that was read stands for.
    Node* Named(Symbol* name, Spot spot);
    Node* SpecialValue(SpecialName name, Spot spot);
    Node* Imported(Symbol* name, Spot spot);
    /// Tells of a name that the version's players do not know.
    void NoteName(Symbol* name, Spot spot);
    /// A use of a name as a variable.
    void NoteUse(Symbol* name);
    void NoteCall(Symbol* name);
    /// Keeps a variable of the function out of the registers.
    void KeepNamed(Symbol* name);
    void NoteSpecial(SpecialName name);
    Node* Parenthesised();
    Node* ArrayLiteral();
    Node* ObjectLiteral();
    Node* PropertyKey();
    void Arguments(Node* call);
    Node* SlashPath(Lexer::PathForm form);
    Node* SlashPathOperand();
    void CheckTarget(const Node& target);
    static void NoteOwn(Symbol& name);
    void NoteSharedMember(const Node& target);
    Node* MakeBinary(Operator op, Node* left, Node* right, Spot spot);

    /// What `var` or `function` declares: a name, or where a path leads.
    struct DeclaredPlace {
        Symbol* Name = nullptr;
        Node* Path = nullptr;
    };
    DeclaredPlace DeclaredName(StringView what, Lexer::PathForm form);

    // Functions and classes.
    void DeclareFunction(Symbol* name);
    Node* AssignmentTo(Node* target, Node* value);
    Node* FunctionRest(Symbol* name, Spot spot);
    void Parameters(FunctionNode& function);
    void Parameter(FunctionNode& function);
    void Declare(Symbol* name);
    void AddDeclared(Symbol* name);
    void ChooseRegisters(FunctionNode& function, std::size_t firstUse);
    Node* ClassStatement();
    void CallBaseFirst(FunctionNode& function);
    void CloseFunction(FunctionNode& function, std::size_t firstUse);
    Node* DottedName();
    Node* MembersOf(Node* node);
    Node* ClassReference();
    void Interfaces(ClassNode& node);
    void ClassMembers(ClassNode& node);
    void ClassMember(ClassNode& node);
    void SkipMetadata();
    bool IsModifier() const;
    void Field(ClassNode& node, bool isStatic);
    void Method(ClassNode& node, bool isStatic);
    std::uint32_t Signature();
    void CheckAccessor(const MemberNode& member, std::uint32_t parameters);
    void AddMember(ClassNode& node, const MemberNode& member);
    bool IsClassAhead();

    /// A use of a name at a depth of functions; functions around it keep the variable by its name.
    struct Use {
        Symbol* Name;
        std::uint32_t Depth;
    };
    /// A statement whose body is a block of its own for the player: no jump leaves it.
    struct Guard {
        Node* Statement;
        int Loops;
        int Switches;
    };

    Lexer lexer_;
    Long version_;
    SymbolTable& symbols_;
    Arena& arena_;
    Diagnostics& diagnostics_;
    ConstantFolder folder_;
    Token token_;
    int depth_ = 0;
    bool isHopeless_ = false;
    bool isSound_ = true;
    bool atStatement_ = false;
    int colonsAwaited_ = 0;
    /// Blocks around the statement, within the function.
    int blocks_ = 0;
    /// Object literals that are open around the token.
    int literals_ = 0;
    int loops_ = 0;
    int switches_ = 0;
    bool inClass_ = false;
    /// Of the function that is read next.
    bool isMethodNext_ = false;
    /// Whether a value is read that all objects of a class have.
    bool inObjectField_ = false;
    bool isStaticNext_ = false;
    bool isDerivedNext_ = false;
    FunctionNode* function_ = nullptr;
    /// The `tellTarget` around, within the function.
    Node* target_ = nullptr;
    std::uint32_t functionCount_ = 0;
    /// Places so far where names are looked for at run time.
    std::uint32_t searches_ = 0;
    /// The `with` and `try` statements around, within the function.
    std::vector<Guard> guards_;
    std::size_t firstGuard_ = 0;
    std::vector<Use> uses_;
    Imports imports_;
    std::vector<const ClassNode*> classes_;
};

}  // namespace tamber

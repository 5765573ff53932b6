#pragma once

#include <array>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "script/compiler/ActionCode.h"
#include "script/compiler/ClassTable.h"
#include "script/compiler/ConstantFolder.h"
#include "script/compiler/FaultReport.h"
#include "script/compiler/Node.h"

namespace tamber {

struct Builtin;

/// Makes code of classes and statements. Functions declared at the top go into a code of their own,
/// which runs first, most of the classes into one that runs behind it.
class CodeGenerator {
public:
    /// The key tells scripts apart that may run within each other.
    CodeGenerator(SymbolTable& symbols, Long version, std::uint32_t key, ClassTable& classes,
                  FaultReport& faults);

    /// The script's classes, before its statements.
    void GenerateClasses();
    /// One statement at the top.
    void Generate(const Node& statement);
    const ActionCode& Functions() const { return functions_; }
    const ActionCode& Classes() const { return classCode_; }
    const ActionCode& Main() const { return main_; }

private:
    using Label = ActionCode::Label;

    // What surrounds the code being made.
    enum class ScopeKind : Byte { Loop, ForIn, Switch, KnownTarget, TellTarget, Guard, Last };
    struct Scope {
        ScopeKind Kind;
        /// Where break and continue lead; of a guard, the end of its block.
        Label Break = 0;
        Label Continue = 0;
        const Node* Statement = nullptr;
        /// Of a guard, whether a `finally` stands behind it.
        bool HasLast = false;
    };
    static constexpr std::size_t NoRecord = SIZE_MAX;
    /// Expressions in each other that are made by recursion on the left.
    static constexpr int MaxDepth = 2000;

    struct FunctionState {
        const FunctionNode* Node = nullptr;
        /// Of its registers; NoRecord when it has none of its own.
        std::size_t Record = NoRecord;
        std::size_t FirstScope = 0;
        int Withs = 0;
        Byte This = 0;
        Byte Arguments = 0;
        Byte Super = 0;
        Byte Root = 0;
        Byte Parent = 0;
        Byte Global = 0;
        /// For an object and its key between two actions; 0 until needed.
        Byte Object = 0;
        Byte Key = 0;
    };
    /// Where a value lies.
    enum class PlaceKind : Byte { Register, Variable, Property, Member, Accessor, Index, Named };
    struct Place {
        PlaceKind Kind = PlaceKind::Variable;
        Byte Register = 0;
        Byte Property = 0;
        /// The variable, the member, in version 4 the path of the clip with the property, or the
        /// variable that keeps the name.
        Symbol* Name = nullptr;
        const Node* Object = nullptr;
        const Node* Key = nullptr;
        /// Of a static member that is named alone, the class that has it; of an imported class, its
        /// package.
        const Node* Class = nullptr;
        /// Whether it is that class, in the object that has it.
        bool IsClass = false;
        /// Whether a member is named alone where an object of a `with` may have it.
        bool IsWithin = false;
        /// Whether it is a variable's name when the object has no such member.
        bool IsUncertain = false;
        /// Whether the variable is a property of a target, which may not be there, and is read as
        /// such.
        bool IsOfTarget = false;
    };

    /// What must be there before the value of a field is worked out: nothing that the player does
    /// not have, all classes, or what code stands above the class.
    enum class ValueNeeds : Byte { Nothing, Classes, Code };
    /// Where a class is set up: it, and those of its fields that are late, where it stands, or with
    /// all others before the script's code.
    struct ClassPlan {
        bool IsInPlace = false;
        bool HasValuesInPlace = false;
        bool HasLateFields = false;
    };

    /// The jump that passes over the code of a class: where it leads, and the size of the code when
    /// it was last led on.
    struct Skip {
        Label End;
        std::size_t From;
    };

    // Statements.
    void Statement(const Node& node);
    void Statements(const Node* first);
    void Var(const Node& node);
    void If(const Node& node);
    void While(const Node& node);
    void DoWhile(const Node& node);
    void For(const Node& node);
    void Loop(const Node* condition, const Node& body, const Node* step, Spot spot);
    void ForIn(const Node& node);
    void EnumerateObject(const Node& node);
    void AssignEnumerated(const Node& target);
    void Switch(const Node& node);
    void SwitchTests(const Node& node, const std::vector<Label>& labels, Label end);
    void PlaceClause(Label label);
    void TestOfCase(const Node& value);
    void With(const Node& node);
    void PushWithObject(const Node& object);
    Symbol* WithName(int number);
    void TellTarget(const Node& node);
    bool SetKnownTarget(const Node& target);
    bool KeepsTargetsApart() const;
    bool IsInTarget() const;
    void PushKeptTarget(std::size_t scope);
    void LeaveTarget(std::size_t scope);
    void SetKeptTarget(std::size_t scope);
    void RestoreTarget(std::size_t scopes);
    void RestoreThrownTarget(const Node& statement);
    void IfFrameLoaded(const Node& node);
    void Try(const Node& node);
    void TryCatch(const Node& node);
    void Finally(const Node& node);
    void Handlers(const Node& first);
    void Handler(const Node& node);
    Symbol* CaughtName(const Node& handler);
    void TestOfType(const Node& type, Label otherwise);
    template <class Body>
    void GuardBlock(const Node& statement, const Body& body);
    void EndGuard(Label end);
    std::uint32_t MarksOf(const Node& statement) const;
    void FollowMarks(std::uint32_t marks, Spot spot);
    void FollowMark(std::uint32_t mark);
    void Leave(NodeKind kind);
    void LeaveGuard(const Scope& scope, std::uint32_t mark);
    void Throw();
    void Unwind(std::size_t scope, bool hasValue);
    void UnwindForIn();
    bool IsBeforeLast() const;

    // Expressions.
    void Expression(const Node& node);
    void Effect(const Node& node);
    void EffectOfConditional(const Node& node);
    void Condition(const Node& node, Label label, bool jumpIf);
    void ConditionChain(const Node& node, Label label, bool jumpIf);
    void ConditionValue(const Node& node, Label label, bool jumpIf);
    void Binary(const Node& node);
    void BinaryRest(const Node& node);
    bool IsReversed(const Node& node) const;
    bool IsMadeApart(const Node& node) const;
    void Apart(const Node& node);
    void Reversed(const Node& node);
    void TruthValue(const Node& condition);
    static bool IsLogical(const Node& node);
    void SwapOperands(const Node& node);
    static bool IsNegated(Operator op);
    Opcode ActionOf(Operator op) const;
    void Unary(const Node& node);
    void MakeNumber();
    void Delete(const Node& target);
    void Conditional(const Node& node);
    void ObjectLiteral(const Node& node);
    void ArrayLiteral(const Node& node);
    void Name(const Node& node);
    void This();
    void Super();
    bool IsSimple(const Node& node) const;
    void PushInteger(Long value) { code_->PushNumber(value); }
    void Numeric(double value);
    void NumericOperand(const Node& node);
    static bool TakesNumbers(Operator op);
    static bool EndsInNot(const Node& condition);
    void ReturnValue(const Node* value);
    void PushLiteral(const Node& node);
    void Text(std::string_view text) { code_->PushText(symbols_.InternCopy(text)); }
    void Undefined();

    // Places.
    const Node& Meant(const Node& node);
    Place PlaceOf(const Node& node);
    Place PlaceOfVariable(const Node& name) const;
    Place PlaceOfClass(const Node& path);
    Place PlaceOfVersion4(const Node& node);
    void PushPlace(const Place& place);
    void PushCallee(const Place& place);
    void JumpIfDefined(Label label);
    void LoadVariableIfUndefined(Symbol& name);
    void PushObject(const Place& place);
    void PushObjectWithin(const Place& place);
    void PushOwnObject(const Place& place);
    void CallAccessor(const Place& place, bool isGetter);
    bool HasSharedRegisters() const;
    void PushPlaceUnderValue(const Place& place);
    void PushOwner(const Place& place);
    void LoadWithOwner(const Place& place);
    void LoadPlace(const Place& place);
    void LoadPropertyOfTarget(Byte property);
    void Load(const Place& place);
    void Store(const Place& place);
    void Assign(const Node& node, bool isWanted);
    void AssignPlain(const Place& place, const Node& value, bool isWanted);
    void StoreKeeping(const Place& place, Operator step = Operator::None);
    void TakeIndex();
    void PushIndex();
    Place NamedOnce(const Place& place, bool isNeededAgain);
    void Change(const Place& place, const Node* value, Operator op, bool isWanted);
    void ChangeComplex(const Place& place, const Node* value, Operator op, bool isWanted);
    void ApplyChange(const Node* value, Operator op);
    void Increment(const Node& node, bool isWanted);
    void IncrementAfter(const Place& place, Operator op);
    void PushKeptPlace(const Place& place);
    bool IsSimplePlace(const Place& place) const;
    void ChooseKeyRegisters();
    Symbol* PathText(const Node& node, std::string_view path);
    bool SlashPathOf(const Node& node, std::string& path) const;
    static std::string WithoutClipName(std::string_view path);

    // Calls.
    /// False when the call leaves no value.
    bool Call(const Node& node);
    bool BuiltinCall(const Builtin& builtin, const Node& node);
    bool IsCallOfBuiltin(const Node& node);
    void PlainCall(const Node& node);
    bool IsMemberPlace(const Node& callee);
    void MethodCall(const Node& node);
    bool CallInSlashPath(const Node& node);
    bool CallInTarget(const std::string& path, Symbol* name, const Node& node);
    bool CallForClip(const Builtin& builtin, Symbol& target, bool isSecond, const Node& node);
    void EnterTarget(Symbol& path);
    void WrongCount(const Node& node, Long least, Long most);
    void Target(const Node& node);
    static bool IsClipName(const Node& node);
    void PushArguments(const Node& node);
    void PushArgumentsBackward(const Node* first, std::uint32_t count);
    void New(const Node& node);
    void Goto(const Node& node, bool isPlay);
    void Url(const Node& node, std::uint32_t flags);
    void UrlOfLevel(const Node& url, const Node& level, std::uint32_t flags);
    void PushLevel(const Node& level);
    void UrlText(Symbol* url, const Node& target, bool isLevel, std::uint32_t flags);
    std::uint32_t Method(const Node* node);
    void FsCommand(const Node& node);
    void Print(const Node& node, std::string_view scheme, bool isLevel);
    void Duplicate(const Node& node);
    void StartDrag(const Node& node);
    bool PropertyNumber(const Node& node, Byte& number) const;
    void PushProperty(const Node& node);
    bool IsMethodWithin(const Builtin& builtin, const Node& call) const;
    bool IsMethodOfClip(const Builtin& builtin) const;
    static bool HasMethodArguments(const Builtin& builtin, const Node& call);

    // Functions and classes.
    void Function(const Node& node);
    void FunctionValue(const Node& node);
    void ChoosePreloads(FunctionState& state, ActionCode::FunctionRecord& record) const;
    static void Bind(const FunctionNode& function);
    static void Unbind(const FunctionNode& function);
    void ClassInPlace(const ClassNode& node);
    ClassPlan PlanOf(const ClassNode& node);
    void Class(const ClassNode& node);
    void Package(const Node& node);
    void ClassPath(const Node& node);
    void ClassOwner(const Node& node);
    void Prototype(const Node& name);
    void Constructor(const ClassNode& node);
    void Inherit(const ClassNode& node);
    void PushBase(const Node& base);
    void Implement(const ClassNode& node);
    void Members(const ClassNode& node, Skip& skip);
    void SetMember(const ClassNode& node, const MemberNode& member, Skip& skip);
    ValueNeeds NeedsOf(const Node& value, ClassTable::Record& record);
    ValueNeeds NeedsOfName(const Symbol& name, ClassTable::Record& record);
    void Fields(const ClassNode& node, bool areLate, Skip& skip);
    void LateFields(const ClassNode& node);
    void Mark(const ClassNode& node);
    void PushMark(const ClassNode& node);
    void Hop(Skip& skip, Spot spot);
    void Accessors(const ClassNode& node, bool isStatic, Skip& skip);
    void AccessorMethod(const ClassNode& node, const MemberNode& accessor);
    void AccessorFunction(const ClassNode& node, const MemberNode* accessor, Symbol* name,
                          bool isGetter);
    void Forwarder(Symbol* method, bool isGetter, Spot spot);
    void MadeFunction(FunctionNode& function);
    Symbol* AccessorName(const Symbol& name, bool isGetter);
    bool IsAccessorOfBase(const Node& node);
    void HideMembers(const ClassNode& node);

    // What names mean in and of classes.
    bool Cast(const Node& node);
    ClassTable::Member FindMember(const Symbol* name);
    void CheckStatic(const Node& name);
    bool IsInStatic() const { return function_.Node != nullptr && function_.Node->IsStatic; }
    /// Whether the code is that of a function which is called for an object of the class.
    bool RunsForObject() const { return function_.Node != nullptr && function_.Node->IsMethod; }
    bool IsInFieldValue() const { return class_ != nullptr && function_.Node == nullptr; }
    bool MayBeInherited(const Symbol& name);
    ClassTable::Record* ClassNamed(const Node& path);
    const Node* ClassWithMember(const Node& member);
    bool IsReachedByPath(const Node& node);
    void PushClass(const Node& name);
    bool IsHidden(const Node& path);
    bool IsOwnMethod(const Builtin& builtin, const Node& call);

    /// The name that a variable has in the code.
    static Symbol* Called(const Node& name) {
        return name.Name->Alias != nullptr ? name.Name->Alias : name.Name;
    }
    Symbol* Known(std::string_view text) { return symbols_.Intern(text); }
    void Complain(const Node& node, String text);
    bool IsFull() const {
        return code_->IsFull() || symbols_.All().size() > ActionCode::MaxOperand;
    }
    void TooLong(const Node& node);
    void NeedVersion5(const Node& node);

    SymbolTable& symbols_;
    Long version_;
    std::uint32_t key_;
    FaultReport& faults_;
    ConstantFolder folder_;
    ActionCode functions_;
    ActionCode classCode_;
    ActionCode main_;
    /// Texts of small integers, made when first needed.
    std::array<Symbol*, 10000> digits_{};
    ActionCode* code_ = &main_;
    FunctionState function_;
    std::vector<Scope> scopes_;
    std::vector<const Node*> spine_;
    std::vector<ActionCode::Parameter> parameters_;
    ClassTable& classes_;
    ClassTable::Record* class_ = nullptr;
    std::unordered_map<const ClassNode*, ClassPlan> plans_;
    std::unordered_set<const MemberNode*> lateFields_;
    int depth_ = 0;
    /// Assignments and increments in each other.
    int changes_ = 0;
    bool isTooLong_ = false;
    /// Names of what was caught so far.
    std::uint32_t caught_ = 0;
};

}  // namespace tamber

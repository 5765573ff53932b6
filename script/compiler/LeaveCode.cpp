#include <utility>

#include "script/compiler/CodeGenerator.h"

namespace tamber {

namespace {

/// How a block of its own was left, beside the jumps of its statement.
constexpr Long AtEnd = 0;
constexpr std::uint32_t EscapesByThrow = 8;

/// Types of plain values, and what `typeof` calls them.
constexpr std::pair<std::string_view, std::string_view> PlainTypes[] = {
    {"String", "string"}, {"Number", "number"}, {"Boolean", "boolean"}};

}  // namespace

/// A block that the player runs by itself: what leaves it goes to its end first. Where that may be,
/// each way there puts a value on the stack, which a return or throw has, and a mark.
template <class Body>
void CodeGenerator::GuardBlock(const Node& statement, const Body& body) {
    const Label end = code_->NewLabel(statement.At);
    const bool isMarked = MarksOf(statement) != 0;
    scopes_.push_back({ScopeKind::Guard, end, end, &statement});
    body();
    scopes_.pop_back();
    if (isMarked) EndGuard(end);
}

void CodeGenerator::With(const Node& node) {
    PushWithObject(*node.A);
    code_->BeginWith(node.At);
    ++function_.Withs;
    GuardBlock(node, [&] { Statement(*node.B); });
    --function_.Withs;
    code_->EndWith();
    FollowMarks(MarksOf(node), node.At);
}

/// In a class, whose members are no variables, the object has a name, to be asked for them.
void CodeGenerator::PushWithObject(const Node& object) {
    if (class_ == nullptr) return Expression(object);
    Symbol* const name = WithName(function_.Withs + 1);
    code_->PushText(name);
    Expression(object);
    code_->Emit(Opcode::DefineLocal);
    code_->PushText(name);
    code_->Emit(Opcode::GetVariable);
}

Symbol* CodeGenerator::WithName(int number) {
    return symbols_.InternCopy("$with" + std::to_string(number));
}

/// The jumps that mark a guard when they leave it. A return does only where a `finally` runs first.
std::uint32_t CodeGenerator::MarksOf(const Node& statement) const {
    return IsBeforeLast() ? statement.Count : statement.Count & ~Node::EscapesByReturn;
}

/// Whether a `finally` of the function runs before a return ends it.
bool CodeGenerator::IsBeforeLast() const {
    for (std::size_t i = function_.FirstScope; i < scopes_.size(); ++i)
        if (scopes_[i].HasLast) return true;
    return false;
}

void CodeGenerator::EndGuard(Label end) {
    code_->Emit(ItemKind::PushUndefined);
    PushInteger(AtEnd);
    code_->Place(end);
}

/// Goes on where a block that ended with a mark was to be left to.
void CodeGenerator::FollowMarks(std::uint32_t marks, Spot spot) {
    if (marks == 0) return;
    for (const std::uint32_t mark :
         {Node::EscapesByBreak, Node::EscapesByContinue, Node::EscapesByReturn, EscapesByThrow}) {
        if ((marks & mark) == 0) continue;
        const Label next = code_->NewLabel(spot);
        code_->Emit(Opcode::PushDuplicate);
        PushInteger(static_cast<Long>(mark));
        code_->Emit(Opcode::Equals2);
        code_->Emit(Opcode::Not);
        code_->JumpIf(next);
        code_->Emit(Opcode::Pop);
        FollowMark(mark);
        code_->Place(next);
    }
    code_->Emit(Opcode::Pop);
    code_->Emit(Opcode::Pop);
}

/// The value lies on the stack.
void CodeGenerator::FollowMark(std::uint32_t mark) {
    if (mark == EscapesByThrow) return Throw();
    if (mark == Node::EscapesByReturn) return Leave(NodeKind::Return);
    code_->Emit(Opcode::Pop);
    Leave(mark == Node::EscapesByBreak ? NodeKind::Break : NodeKind::Continue);
}

/// Goes to where break, continue or return lead, out of what stands between. The value of a return
/// lies on the stack.
void CodeGenerator::Leave(NodeKind kind) {
    const bool isReturn = kind == NodeKind::Return;
    const bool stopsAtGuard = !isReturn || IsBeforeLast();
    for (std::size_t i = scopes_.size(); i-- > function_.FirstScope;) {
        const Scope& scope = scopes_[i];
        const bool isLoop = scope.Kind == ScopeKind::Loop || scope.Kind == ScopeKind::ForIn;
        if (kind == NodeKind::Continue && isLoop) return code_->Jump(scope.Continue);
        if (kind == NodeKind::Break && (isLoop || scope.Kind == ScopeKind::Switch))
            return code_->Jump(scope.Break);
        if (scope.Kind == ScopeKind::Guard && stopsAtGuard)
            return LeaveGuard(scope, isReturn                  ? Node::EscapesByReturn
                                     : kind == NodeKind::Break ? Node::EscapesByBreak
                                                               : Node::EscapesByContinue);
        Unwind(i, isReturn);
    }
    if (isReturn) code_->Emit(Opcode::Return);
}

void CodeGenerator::LeaveGuard(const Scope& scope, std::uint32_t mark) {
    if (mark != Node::EscapesByReturn) code_->Emit(ItemKind::PushUndefined);
    PushInteger(static_cast<Long>(mark));
    code_->Jump(scope.Break);
}

/// Takes what a scope has left on the stack from there, from under a value that waits, or goes back
/// to the target around it.
void CodeGenerator::Unwind(std::size_t scope, bool hasValue) {
    const ScopeKind kind = scopes_[scope].Kind;
    if (!code_->IsReachable()) return;
    if (kind == ScopeKind::KnownTarget || kind == ScopeKind::TellTarget) return LeaveTarget(scope);
    if (kind != ScopeKind::ForIn && kind != ScopeKind::Last) return;
    if (hasValue) {
        code_->Emit(ItemKind::StoreRegister, 0);
        code_->Emit(Opcode::Pop);
    }
    if (kind == ScopeKind::ForIn) {
        UnwindForIn();
    } else {
        code_->Emit(Opcode::Pop);
        code_->Emit(Opcode::Pop);
    }
    if (hasValue) code_->PushRegister(0);
}

void CodeGenerator::ReturnValue(const Node* value) {
    if (value != nullptr && value->Kind == NodeKind::Conditional) {
        const Label then = code_->NewLabel(value->At);
        const bool isSwapped = EndsInNot(*value->A);
        Condition(*value->A, then, !isSwapped);
        ReturnValue(isSwapped ? value->B : value->C);
        code_->Place(then);
        return ReturnValue(isSwapped ? value->C : value->B);
    }
    if (value != nullptr)
        Expression(*value);
    else
        Undefined();
    Leave(NodeKind::Return);
}

/// The value lies on the stack. What scopes between here and the nearest try have left there would
/// reach those around it.
void CodeGenerator::Throw() {
    const auto catches = [this](std::size_t i) {
        return scopes_[i].Kind == ScopeKind::Guard && scopes_[i].Statement->Kind == NodeKind::Try;
    };
    std::size_t nearest = scopes_.size();
    while (nearest > function_.FirstScope && !catches(nearest - 1)) --nearest;
    if (nearest > function_.FirstScope)
        for (std::size_t i = scopes_.size(); i-- > nearest;) Unwind(i, true);
    code_->Emit(Opcode::Throw);
}

void CodeGenerator::Try(const Node& node) {
    node.C == nullptr ? TryCatch(node) : Finally(node);
}

/// Without handlers, the body alone.
void CodeGenerator::TryCatch(const Node& node) {
    if (node.B == nullptr) return Statement(*node.A);
    code_->BeginTry(node.At);
    GuardBlock(node, [&] { Statement(*node.A); });
    code_->EndTryBlock(ItemKind::TryBodyEnd);
    GuardBlock(node, [&] {
        RestoreThrownTarget(node);
        Handlers(*node.B);
    });
    code_->EndTryBlock(ItemKind::TryEnd);
    RestoreThrownTarget(node);
    FollowMarks(MarksOf(node), node.At);
}

/// What was thrown may have left a target. For some players a block that catches has its own, which
/// ends with it.
void CodeGenerator::RestoreThrownTarget(const Node& statement) {
    if (statement.Flag) RestoreTarget(scopes_.size());
}

/// Each handler that tells a type is asked whether it is meant, and what none takes is thrown
/// again. The exception lies in register 0: a name that the player gave it could be a variable of
/// others.
void CodeGenerator::Handlers(const Node& first) {
    const Label end = code_->NewLabel(first.At);
    bool takesAll = false;
    for (const Node* handler = &first; handler != nullptr; handler = handler->Next) {
        const Label next = code_->NewLabel(handler->At);
        takesAll = handler->A == nullptr;
        if (!takesAll) TestOfType(*handler->A, next);
        Handler(*handler);
        code_->Jump(end);
        code_->Place(next);
    }
    if (!takesAll) {
        code_->PushRegister(0);
        Throw();
    }
    code_->Place(end);
}

/// What is caught has its name within the block only, and hides what else is called so.
void CodeGenerator::Handler(const Node& node) {
    Symbol& name = *node.Name;
    Symbol* const alias = CaughtName(node);
    code_->PushText(alias != nullptr ? alias : &name);
    code_->PushRegister(0);
    code_->Emit(Opcode::DefineLocal);
    const Byte outer = std::exchange(name.Register, Symbol::NoRegister);
    Symbol* const outerAlias = std::exchange(name.Alias, alias);
    ++name.Declarations;
    Statement(*node.B);
    --name.Declarations;
    name.Alias = outerAlias;
    name.Register = outer;
}

/// A name that nothing else in the function has. Null where the own one is asked for at run time,
/// or would show among the variables of a timeline.
Symbol* CodeGenerator::CaughtName(const Node& handler) {
    if (handler.Flag || function_.Node == nullptr) return nullptr;
    return symbols_.InternCopy("$caught" + std::to_string(caught_++));
}

/// Jumps when the exception is not of a type. Plain values are instances of no class, so theirs are
/// known by their names.
void CodeGenerator::TestOfType(const Node& type, Label otherwise) {
    const Label taken = code_->NewLabel(type.At);
    for (const auto& [name, kind] : PlainTypes) {
        if (type.Kind != NodeKind::Name || type.Name->Text != name) continue;
        code_->PushRegister(0);
        code_->Emit(Opcode::TypeOf);
        Text(kind);
        code_->Emit(Opcode::Equals2);
        code_->JumpIf(taken);
    }
    code_->PushRegister(0);
    Expression(type);
    code_->Emit(Opcode::InstanceOf);
    code_->Emit(Opcode::Not);
    code_->JumpIf(otherwise);
    code_->Place(taken);
}

/// The player has an action for it, out of whose last block no jump can lead: so that block stands
/// behind a try that catches everything, and what was thrown is thrown again behind it.
void CodeGenerator::Finally(const Node& node) {
    const Label end = code_->NewLabel(node.At);
    code_->BeginTry(node.At);
    scopes_.push_back({ScopeKind::Guard, end, end, &node, true});
    TryCatch(node);
    scopes_.pop_back();
    EndGuard(end);
    code_->EndTryBlock(ItemKind::TryBodyEnd);
    code_->PushRegister(0);
    PushInteger(EscapesByThrow);
    code_->EndTryBlock(ItemKind::TryEnd);
    RestoreThrownTarget(node);
    scopes_.push_back({ScopeKind::Last});
    Statement(*node.C);
    scopes_.pop_back();
    FollowMarks(node.Count | EscapesByThrow, node.At);
}

}  // namespace tamber

#include "script/compiler/CodeGenerator.h"

namespace tamber {

namespace {

/// How a block of its own was left, in its variable.
constexpr Long LeftByBreak = 1;
constexpr Long LeftByContinue = 2;
constexpr Long LeftByReturn = 3;

/// Variable for a value that waits.
constexpr std::string_view ResultName = "$result";

}  // namespace

void CodeGenerator::With(const Node& node) {
    Symbol* exit = ExitName();
    Expression(*node.A);
    const bool isLeft = (node.Count & (Node::EscapesByBreak | Node::EscapesByContinue)) != 0;
    if (isLeft) {
        code_->PushText(exit);
        PushInteger(0);
        SetLocal();
    }
    code_->BeginWith(node.Line);
    ++function_.Withs;
    GuardBlock(node.B, node, exit);
    --function_.Withs;
    code_->EndWith();
    AfterGuard(node, exit);
}

/// Differs from that of each guard around.
Symbol* CodeGenerator::ExitName() {
    return symbols_.InternCopy("$exit" + std::to_string(scopes_.size()));
}

/// A block that the player runs by itself: what leaves it goes to its end first, with a mark.
void CodeGenerator::GuardBlock(const Node* block, const Node& statement, Symbol* exit) {
    if (block == nullptr) return;
    const Label end = code_->NewLabel(statement.Line);
    const bool isLast = block == statement.C;
    scopes_.push_back({ScopeKind::Guard, end, end, &statement, exit, isLast});
    Statement(*block);
    scopes_.pop_back();
    code_->Place(end);
}

void CodeGenerator::AfterGuard(const Node& statement, Symbol* exit) {
    const auto follow = [&](std::uint32_t flag, Long mark, NodeKind kind) {
        if ((statement.Count & flag) == 0) return;
        const Label stays = code_->NewLabel(statement.Line);
        code_->PushText(exit);
        code_->Emit(Opcode::GetVariable);
        PushInteger(mark);
        code_->Emit(Opcode::Equals2);
        code_->Emit(Opcode::Not);
        code_->JumpIf(stays);
        Leave(kind);
        code_->Place(stays);
    };
    follow(Node::EscapesByBreak, LeftByBreak, NodeKind::Break);
    follow(Node::EscapesByContinue, LeftByContinue, NodeKind::Continue);
    if (statement.Kind == NodeKind::Try && statement.C != nullptr)
        follow(Node::EscapesByReturn, LeftByReturn, NodeKind::Return);
}

void CodeGenerator::LeaveGuard(const Scope& scope, NodeKind kind) {
    code_->PushText(scope.Exit);
    PushInteger(kind == NodeKind::Break      ? LeftByBreak
                : kind == NodeKind::Continue ? LeftByContinue
                                             : LeftByReturn);
    code_->Emit(Opcode::SetVariable);
    code_->Jump(scope.Break);
}

/// Whether it is a part of a try whose `finally` runs before a function ends.
bool CodeGenerator::HasLast(const Scope& scope) {
    return scope.Kind == ScopeKind::Guard && scope.Statement->Kind == NodeKind::Try &&
           scope.Statement->C != nullptr && !scope.IsLast;
}

/// Goes to where break, continue or return lead, out of what stands between. The value of a return
/// that passes a `finally` waits in a variable.
void CodeGenerator::Leave(NodeKind kind) {
    for (std::size_t i = scopes_.size(); i-- > function_.FirstScope;) {
        const Scope& scope = scopes_[i];
        const bool isLoop = scope.Kind == ScopeKind::Loop || scope.Kind == ScopeKind::ForIn;
        if (kind == NodeKind::Continue && isLoop) return code_->Jump(scope.Continue);
        if (kind == NodeKind::Break && (isLoop || scope.Kind == ScopeKind::Switch))
            return code_->Jump(scope.Break);
        if (scope.Kind == ScopeKind::ForIn && code_->IsReachable()) UnwindForIn();
        if (scope.Kind == ScopeKind::TellTarget) RestoreTarget(i);
        if (scope.Kind == ScopeKind::Guard && (kind != NodeKind::Return || HasLast(scope)))
            return LeaveGuard(scope, kind);
    }
    if (kind != NodeKind::Return) return;
    code_->PushText(Known(ResultName));
    code_->Emit(Opcode::GetVariable);
    code_->Emit(Opcode::Return);
}

void CodeGenerator::Return(const Node& node) {
    bool isKept = false;
    for (std::size_t i = function_.FirstScope; i < scopes_.size(); ++i)
        isKept = isKept || scopes_[i].Kind == ScopeKind::ForIn ||
                 scopes_[i].Kind == ScopeKind::TellTarget || HasLast(scopes_[i]);
    if (!isKept) return ReturnValue(node.A);
    code_->PushText(Known(ResultName));
    if (node.A != nullptr)
        Expression(*node.A);
    else
        Undefined();
    code_->Emit(Opcode::DefineLocal);
    Leave(NodeKind::Return);
}

void CodeGenerator::ReturnValue(const Node* value) {
    if (value != nullptr && value->Kind == NodeKind::Conditional) {
        const Label then = code_->NewLabel(value->Line);
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
    code_->Emit(Opcode::Return);
}

/// Names that a loop between here and the nearest try has left on the stack would reach a loop
/// around that.
void CodeGenerator::Throw(const Node& node) {
    std::size_t loops = 0;
    bool isCaught = false;
    for (std::size_t i = scopes_.size(); i-- > function_.FirstScope && !isCaught;) {
        if (scopes_[i].Kind == ScopeKind::ForIn) ++loops;
        isCaught =
            scopes_[i].Kind == ScopeKind::Guard && scopes_[i].Statement->Kind == NodeKind::Try;
    }
    const bool isKept = isCaught && loops > 0;
    if (isKept) code_->PushText(Known(ResultName));
    Expression(*node.A);
    if (isKept) {
        SetLocal();
        for (; loops > 0; --loops) UnwindForIn();
        code_->PushText(Known(ResultName));
        code_->Emit(Opcode::GetVariable);
    }
    code_->Emit(Opcode::Throw);
}

void CodeGenerator::Try(const Node& node) {
    Symbol* exit = ExitName();
    if (node.Count != 0) {
        code_->PushText(exit);
        PushInteger(0);
        SetLocal();
    }
    code_->BeginTry({node.Name, node.Line, node.B != nullptr, node.C != nullptr});
    GuardBlock(node.A, node, exit);
    code_->EndTryBlock(ItemKind::TryBodyEnd);
    GuardBlock(node.B, node, exit);
    code_->EndTryBlock(ItemKind::HandlerEnd);
    GuardBlock(node.C, node, exit);
    code_->EndTryBlock(ItemKind::TryEnd);
    AfterGuard(node, exit);
}

}  // namespace tamber

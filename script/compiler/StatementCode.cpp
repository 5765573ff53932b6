#include <algorithm>

#include "script/compiler/CodeGenerator.h"
#include "script/compiler/DottedPath.h"
#include "script/compiler/Versions.h"

namespace tamber {

CodeGenerator::CodeGenerator(SymbolTable& symbols, Long version, std::uint32_t key,
                             ClassTable& classes, FaultReport& faults)
    : symbols_(symbols),
      version_(version),
      key_(key),
      faults_(faults),
      folder_(symbols, version),
      functions_(version >= FirstObjectVersion),
      classCode_(version >= FirstObjectVersion),
      main_(version >= FirstObjectVersion),
      classes_(classes) {}

void CodeGenerator::Generate(const Node& statement) {
    if (statement.Kind == NodeKind::Function && statement.Flag) {
        code_ = &functions_;
        Statement(statement);
        code_ = &main_;
    } else {
        Statement(statement);
    }
}

void CodeGenerator::Complain(const Node& node, String text) {
    faults_.Error(node.At, std::move(text));
}

void CodeGenerator::TooLong(const Node& node) {
    if (!isTooLong_) Complain(node, u"スクリプトが長すぎます。いくつかに分けて下さい。");
    isTooLong_ = true;
}

void CodeGenerator::Statements(const Node* first) {
    for (const Node* node = first; node != nullptr; node = node->Next) Statement(*node);
}

void CodeGenerator::Statement(const Node& node) {
    if (IsFull()) return TooLong(node);
    switch (node.Kind) {
        case NodeKind::Empty:
            return;
        case NodeKind::Expression:
            return Effect(*node.A);
        case NodeKind::Block:
            return Statements(node.A);
        case NodeKind::Var:
            return Var(node);
        case NodeKind::If:
            return If(node);
        case NodeKind::While:
            return While(node);
        case NodeKind::DoWhile:
            return DoWhile(node);
        case NodeKind::For:
            return For(node);
        case NodeKind::ForIn:
            return ForIn(node);
        case NodeKind::Break:
        case NodeKind::Continue:
            return Leave(node.Kind);
        case NodeKind::Return:
            return ReturnValue(node.A);
        case NodeKind::Switch:
            return Switch(node);
        case NodeKind::With:
            return With(node);
        case NodeKind::TellTarget:
            return TellTarget(node);
        case NodeKind::IfFrameLoaded:
            return IfFrameLoaded(node);
        case NodeKind::Try:
            return Try(node);
        case NodeKind::Throw:
            Expression(*node.A);
            return Throw();
        case NodeKind::Function:
            return node.A == nullptr ? Function(node) : AssignPlain(PlaceOf(*node.A), node, false);
        case NodeKind::Class:
            return ClassInPlace(*node.Class);
        default:
            return Effect(node);
    }
}

/// On a timeline a variable is the clip's; version 4 has no other. Where a path leads, a value is
/// set, and without one nothing is done.
void CodeGenerator::Var(const Node& node) {
    if (node.B != nullptr) {
        if (node.A != nullptr) AssignPlain(PlaceOf(*node.B), *node.A, false);
    } else if (node.Name->Register != Symbol::NoRegister) {
        if (node.A != nullptr)
            AssignPlain({PlaceKind::Register, node.Name->Register, 0, node.Name}, *node.A, false);
    } else if (version_ < FirstObjectVersion) {
        if (node.A != nullptr) AssignPlain({.Name = node.Name}, *node.A, false);
    } else {
        code_->PushText(Called(node));
        if (node.A != nullptr) Expression(*node.A);
        code_->Emit(node.A != nullptr ? Opcode::DefineLocal : Opcode::DefineLocal2);
    }
}

void CodeGenerator::If(const Node& first) {
    const Label end = code_->NewLabel(first.At);
    const Node* node = &first;
    for (; node != nullptr && node->Kind == NodeKind::If; node = node->C) {
        const int known = folder_.ConditionOf(*node->A);
        if (known == 0) continue;
        if (known == 1) {
            Statement(*node->B);
            return code_->Place(end);
        }
        const Label otherwise = code_->NewLabel(node->At);
        if (node->C != nullptr && node->C->Kind != NodeKind::If && !EndsInNot(*node->A)) {
            // The other way round there is nothing to negate.
            Condition(*node->A, otherwise, true);
            Statement(*node->C);
            code_->Jump(end);
            code_->Place(otherwise);
            Statement(*node->B);
            return code_->Place(end);
        }
        Condition(*node->A, otherwise, false);
        Statement(*node->B);
        if (node->C != nullptr) code_->Jump(end);
        code_->Place(otherwise);
    }
    if (node != nullptr) Statement(*node);
    code_->Place(end);
}

/// The test stands behind the body, and the loop is entered there.
void CodeGenerator::Loop(const Node* condition, const Node& body, const Node* step, Spot spot) {
    const int known = condition == nullptr ? 1 : folder_.ConditionOf(*condition);
    if (known == 0) return;
    const Label begin = code_->NewLabel(spot);
    const Label end = code_->NewLabel(spot);
    const Label next = code_->NewLabel(spot);
    const Label test = code_->NewLabel(spot);
    const bool isReached = code_->IsReachable();
    if (known < 0) code_->Jump(test);
    code_->PlaceBackward(begin, isReached);
    scopes_.push_back({ScopeKind::Loop, end, next});
    Statement(body);
    scopes_.pop_back();
    code_->Place(next);
    if (step != nullptr) Effect(*step);
    code_->Place(test);
    if (known < 0)
        Condition(*condition, begin, true);
    else
        code_->Jump(begin);
    code_->Place(end);
}

void CodeGenerator::While(const Node& node) {
    Loop(node.A, *node.B, nullptr, node.At);
}

void CodeGenerator::For(const Node& node) {
    if (node.A != nullptr) Statement(*node.A);
    Loop(node.B, *node.D, node.C, node.At);
}

void CodeGenerator::DoWhile(const Node& node) {
    const Label begin = code_->NewLabel(node.At);
    const Label end = code_->NewLabel(node.At);
    const Label next = code_->NewLabel(node.At);
    code_->PlaceBackward(begin);
    scopes_.push_back({ScopeKind::Loop, end, next});
    Statement(*node.B);
    scopes_.pop_back();
    code_->Place(next);
    Condition(*node.A, begin, true);
    code_->Place(end);
}

/// The player puts the names on the stack, above a null. A loop left early takes the rest off.
void CodeGenerator::ForIn(const Node& node) {
    const Label begin = code_->NewLabel(node.At);
    const Label end = code_->NewLabel(node.At);
    const Label rest = code_->NewLabel(node.At);
    EnumerateObject(*node.B);
    code_->PlaceBackward(begin);
    code_->Emit(ItemKind::StoreRegister, 0);
    code_->Emit(ItemKind::PushNull);
    code_->Emit(Opcode::Equals2);
    code_->JumpIf(end);
    AssignEnumerated(*node.A);
    scopes_.push_back({ScopeKind::ForIn, rest, begin});
    Statement(*node.C);
    scopes_.pop_back();
    code_->Jump(begin);
    code_->Place(rest);
    if (code_->IsReachable()) UnwindForIn();
    code_->Place(end);
}

/// Version 5 enumerates by name only, so what has none becomes a member for a moment: of an object
/// that no clip has.
void CodeGenerator::EnumerateObject(const Node& object) {
    if (version_ >= FirstStrictVersion) {
        Expression(object);
        return code_->Emit(Opcode::Enumerate2);
    }
    const std::string path = DottedPath(object);
    if (!path.empty()) {
        code_->PushText(PathText(object, path));
        return code_->Emit(Opcode::Enumerate);
    }
    const auto pushOwner = [this] {
        Text("Object");
        code_->Emit(Opcode::GetVariable);
        Text("$in");
    };
    pushOwner();
    Expression(object);
    code_->Emit(Opcode::SetMember);
    Text("Object.$in");
    code_->Emit(Opcode::Enumerate);
    pushOwner();
    code_->Emit(Opcode::Delete);
    code_->Emit(Opcode::Pop);
}

/// Register 0 holds the name.
void CodeGenerator::AssignEnumerated(const Node& target) {
    if (target.Kind == NodeKind::Var && target.B != nullptr) return AssignEnumerated(*target.B);
    if (target.Kind == NodeKind::Var && target.Name->Register == Symbol::NoRegister) {
        code_->PushText(Called(target));
        code_->PushRegister(0);
        return code_->Emit(Opcode::DefineLocal);
    }
    const Place place = target.Kind == NodeKind::Var
                            ? Place{PlaceKind::Register, target.Name->Register, 0, target.Name}
                            : PlaceOf(target);
    if (place.Kind == PlaceKind::Register) {
        code_->PushRegister(0);
        code_->Emit(ItemKind::StoreRegister, place.Register);
        return code_->Emit(Opcode::Pop);
    }
    const bool isCalled = place.Kind != PlaceKind::Variable && HasSharedRegisters();
    if (IsSimplePlace(place) && !isCalled) {
        PushPlace(place);
        code_->PushRegister(0);
    } else {
        // What names the place may use register 0.
        code_->PushRegister(0);
        PushPlaceUnderValue(place);
    }
    Store(place);
}

void CodeGenerator::UnwindForIn() {
    const Label next = code_->NewLabel({});
    code_->PlaceBackward(next);
    code_->Emit(ItemKind::PushNull);
    code_->Emit(Opcode::Equals2);
    code_->Emit(Opcode::Not);
    code_->JumpIf(next);
}

/// Clauses without statements have the label of the next.
void CodeGenerator::Switch(const Node& node) {
    const Label end = code_->NewLabel(node.At);
    std::vector<Label> labels;
    bool isShared = false;
    for (const Node* clause = node.B; clause != nullptr; clause = clause->Next) {
        labels.push_back(isShared ? labels.back() : code_->NewLabel(clause->At));
        isShared = clause->B == nullptr;
    }
    SwitchTests(node, labels, end);
    scopes_.push_back({ScopeKind::Switch, end});
    std::size_t i = 0;
    for (const Node* clause = node.B; clause != nullptr; clause = clause->Next, ++i) {
        if (i == 0 || labels[i] != labels[i - 1]) PlaceClause(labels[i]);
        Statements(clause->B);
    }
    scopes_.pop_back();
    code_->Place(end);
}

/// The tests come here with the value on the stack, the clause before without it.
void CodeGenerator::PlaceClause(Label label) {
    if (version_ < FirstObjectVersion) return code_->Place(label);
    const Label begin = code_->NewLabel({});
    code_->Jump(begin);
    code_->Place(label);
    code_->Emit(Opcode::Pop);
    code_->Place(begin);
}

/// The value stays on the stack until a clause is found; in version 4, which cannot copy it there,
/// in a variable.
void CodeGenerator::SwitchTests(const Node& node, const std::vector<Label>& labels, Label end) {
    Symbol* const kept = symbols_.InternCopy("$switch" + std::to_string(scopes_.size()));
    const bool isOnStack = version_ >= FirstObjectVersion;
    if (!isOnStack) code_->PushText(kept);
    Expression(*node.A);
    if (!isOnStack) code_->Emit(Opcode::SetVariable);
    const Label* otherwise = nullptr;
    std::size_t i = 0;
    for (const Node* clause = node.B; clause != nullptr; clause = clause->Next, ++i) {
        if (clause->A == nullptr) {
            otherwise = &labels[i];
            continue;
        }
        if (isOnStack) {
            code_->Emit(Opcode::PushDuplicate);
        } else {
            code_->PushText(kept);
            code_->Emit(Opcode::GetVariable);
        }
        Expression(*clause->A);
        TestOfCase(*clause->A);
        code_->JumpIf(labels[i]);
    }
    if (otherwise == nullptr && isOnStack) code_->Emit(Opcode::Pop);
    code_->Jump(otherwise == nullptr ? end : *otherwise);
}

void CodeGenerator::TestOfCase(const Node& value) {
    if (version_ >= FirstStrictVersion)
        code_->Emit(Opcode::StrictEquals);
    else if (version_ >= FirstObjectVersion)
        code_->Emit(Opcode::Equals2);
    else
        code_->Emit(value.Kind == NodeKind::Text ? Opcode::StringEquals : Opcode::Equals);
}

/// Inside another target, within the first so many scopes, that one is set again, and otherwise the
/// script's own clip.
void CodeGenerator::RestoreTarget(std::size_t scopes) {
    code_->Emit(ItemKind::SetTarget, Known("")->Index);
    for (std::size_t i = function_.FirstScope; i < scopes; ++i) {
        if (scopes_[i].Kind == ScopeKind::KnownTarget) SetKnownTarget(*scopes_[i].Statement->A);
        if (scopes_[i].Kind == ScopeKind::TellTarget) SetKeptTarget(i);
    }
}

/// A target that is there to read; false for one that must be worked out.
bool CodeGenerator::SetKnownTarget(const Node& target) {
    std::string path;
    const bool isText = target.Kind == NodeKind::Text || target.Kind == NodeKind::SlashPath;
    const bool isPath =
        !isText && version_ < FirstObjectVersion && IsClipName(target) && SlashPathOf(target, path);
    if (!isText && !isPath) return false;
    code_->Emit(ItemKind::SetTarget, (isText ? target.Name : PathText(target, path))->Index);
    return true;
}

/// On a timeline the targets that are kept are members of an object that no clip has, so that they
/// do not show among its variables.
bool CodeGenerator::KeepsTargetsApart() const {
    return version_ >= FirstObjectVersion && function_.Node == nullptr;
}

bool CodeGenerator::IsInTarget() const {
    return std::any_of(scopes_.begin() + static_cast<std::ptrdiff_t>(function_.FirstScope),
                       scopes_.end(), [](const Scope& scope) {
                           return scope.Kind == ScopeKind::KnownTarget ||
                                  scope.Kind == ScopeKind::TellTarget;
                       });
}

void CodeGenerator::PushKeptTarget(std::size_t scope) {
    if (KeepsTargetsApart()) {
        Text("Object");
        code_->Emit(Opcode::GetVariable);
    }
    Text("$target" + std::to_string(key_) + "_" + std::to_string(scope));
}

void CodeGenerator::SetKeptTarget(std::size_t scope) {
    PushKeptTarget(scope);
    code_->Emit(KeepsTargetsApart() ? Opcode::GetMember : Opcode::GetVariable);
    code_->Emit(Opcode::SetTarget2);
}

/// A target that others within lead back to is worked out once.
void CodeGenerator::TellTarget(const Node& node) {
    const std::size_t scope = scopes_.size();
    const Node& target = *node.A;
    const bool isKnown = SetKnownTarget(target);
    if (!isKnown && node.Flag) {
        PushKeptTarget(scope);
        Expression(target);
        code_->Emit(KeepsTargetsApart()         ? Opcode::SetMember
                    : function_.Node != nullptr ? Opcode::DefineLocal
                                                : Opcode::SetVariable);
        SetKeptTarget(scope);
    } else if (!isKnown) {
        Expression(target);
        code_->Emit(Opcode::SetTarget2);
    }
    scopes_.push_back({isKnown ? ScopeKind::KnownTarget : ScopeKind::TellTarget, 0, 0, &node});
    Statement(*node.B);
    LeaveTarget(scope);
    scopes_.pop_back();
}

void CodeGenerator::LeaveTarget(std::size_t scope) {
    RestoreTarget(scope);
    const bool isKept =
        scopes_[scope].Kind == ScopeKind::TellTarget && scopes_[scope].Statement->Flag;
    if (!isKept || !KeepsTargetsApart()) return;
    PushKeptTarget(scope);
    code_->Emit(Opcode::Delete);
    code_->Emit(Opcode::Pop);
}

/// The action skips one action when the frame is not there: the jump to the body.
void CodeGenerator::IfFrameLoaded(const Node& node) {
    const Label body = code_->NewLabel(node.At);
    const Label end = code_->NewLabel(node.At);
    const Node& frame = *node.A;
    if (frame.Kind == NodeKind::Number && frame.Value >= 1 && frame.Value <= 65535) {
        code_->Emit(ItemKind::WaitForFrame, static_cast<std::uint32_t>(frame.Value) - 1);
    } else {
        Expression(frame);
        code_->Emit(ItemKind::WaitForFrame2);
    }
    code_->JumpUnlessSkipped(body);
    code_->Jump(end);
    code_->Place(body);
    Statement(*node.B);
    code_->Place(end);
}

}  // namespace tamber

#include <cmath>

#include "script/compiler/Builtin.h"
#include "script/compiler/CodeGenerator.h"
#include "script/compiler/Versions.h"

namespace tamber {

void CodeGenerator::Expression(const Node& node) {
    if (code_->IsFull()) return TooLong(node);
    switch (node.Kind) {
        case NodeKind::Number:
        case NodeKind::Text:
        case NodeKind::Boolean:
        case NodeKind::Null:
        case NodeKind::Undefined:
            return PushLiteral(node);
        case NodeKind::Name:
            return Name(node);
        case NodeKind::This:
            return This();
        case NodeKind::Super:
            return Super();
        case NodeKind::SlashPath:
        case NodeKind::Member:
        case NodeKind::Index:
            return LoadPlace(PlaceOf(node));
        case NodeKind::Call:
            if (!Call(node)) Undefined();
            return;
        case NodeKind::New:
            return New(node);
        case NodeKind::Unary:
            return Unary(node);
        case NodeKind::Binary:
            return Binary(node);
        case NodeKind::Conditional:
            return Conditional(node);
        case NodeKind::Assign:
            return Assign(node, true);
        case NodeKind::Increment:
            return Increment(node, true);
        case NodeKind::Function:
            return FunctionValue(node);
        case NodeKind::Object:
            return ObjectLiteral(node);
        case NodeKind::Array:
            return ArrayLiteral(node);
        default:
            for (const Node* part = node.A; part != nullptr; part = part->Next)
                part->Next == nullptr ? Expression(*part) : Effect(*part);
    }
}

/// An expression whose value nobody wants.
void CodeGenerator::Effect(const Node& node) {
    switch (node.Kind) {
        case NodeKind::Assign:
            return Assign(node, false);
        case NodeKind::Increment:
            return Increment(node, false);
        case NodeKind::Call:
            if (Call(node)) code_->Emit(Opcode::Pop);
            return;
        case NodeKind::Comma:
            for (const Node* part = node.A; part != nullptr; part = part->Next) Effect(*part);
            return;
        case NodeKind::Conditional:
            return EffectOfConditional(node);
        case NodeKind::Number:
        case NodeKind::Text:
        case NodeKind::Boolean:
        case NodeKind::Null:
        case NodeKind::Undefined:
            return;
        default:
            Expression(node);
            code_->Emit(Opcode::Pop);
    }
}

void CodeGenerator::EffectOfConditional(const Node& node) {
    const Label otherwise = code_->NewLabel(node.At);
    const Label end = code_->NewLabel(node.At);
    const bool isSwapped = EndsInNot(*node.A);
    Condition(*node.A, otherwise, !isSwapped);
    Effect(isSwapped ? *node.B : *node.C);
    code_->Jump(end);
    code_->Place(otherwise);
    Effect(isSwapped ? *node.C : *node.B);
    code_->Place(end);
}

void CodeGenerator::PushLiteral(const Node& node) {
    switch (node.Kind) {
        case NodeKind::Number:
            return code_->PushNumber(node.Value);
        case NodeKind::Text:
            return code_->PushText(node.Name);
        case NodeKind::Boolean:
            return code_->Emit(ItemKind::PushBoolean, node.Flag ? 1 : 0);
        case NodeKind::Null:
            return code_->Emit(ItemKind::PushNull);
        default:
            return code_->Emit(ItemKind::PushUndefined);
    }
}

/// Version 4 has an empty text for it.
void CodeGenerator::Undefined() {
    if (version_ >= FirstObjectVersion)
        code_->Emit(ItemKind::PushUndefined);
    else
        code_->PushText(Known(""));
}

void CodeGenerator::Name(const Node& node) {
    const auto preloaded = [&] {
        switch (node.Name->Special) {
            case SpecialName::Arguments:
                return function_.Arguments;
            case SpecialName::Root:
                return function_.Root;
            case SpecialName::Parent:
                return function_.Parent;
            case SpecialName::Global:
                return function_.Global;
            default:
                return Symbol::NoRegister;
        }
    };
    const Byte number = preloaded();
    const Place place = PlaceOf(node);
    if (number != Symbol::NoRegister && place.Kind == PlaceKind::Variable)
        return code_->PushRegister(number);
    LoadPlace(place);
}

void CodeGenerator::This() {
    if (function_.This != Symbol::NoRegister) return code_->PushRegister(function_.This);
    code_->PushText(Known(version_ < FirstObjectVersion ? "" : "this"));
    code_->Emit(Opcode::GetVariable);
}

void CodeGenerator::Super() {
    if (function_.Super != Symbol::NoRegister) return code_->PushRegister(function_.Super);
    code_->PushText(Known("super"));
    code_->Emit(Opcode::GetVariable);
}

/// Whether it can be made twice, or out of turn, without a difference.
bool CodeGenerator::IsSimple(const Node& node) const {
    switch (node.Kind) {
        case NodeKind::Number:
        case NodeKind::Text:
        case NodeKind::Boolean:
        case NodeKind::Null:
        case NodeKind::Undefined:
        case NodeKind::Name:
        case NodeKind::This:
        case NodeKind::SlashPath:
            return true;
        default:
            return false;
    }
}

/// Whether the operator is the opposite of an action.
bool CodeGenerator::IsNegated(Operator op) {
    switch (op) {
        case Operator::NotEqual:
        case Operator::StrictNotEqual:
        case Operator::StringNotEqual:
        case Operator::LessEqual:
        case Operator::GreaterEqual:
        case Operator::StringLessEqual:
        case Operator::StringGreaterEqual:
            return true;
        default:
            return false;
    }
}

/// Whether the right operand is worked out only where the left one does not decide.
bool CodeGenerator::IsLogical(const Node& node) {
    return node.Kind == NodeKind::Binary && (node.Op == Operator::And || node.Op == Operator::Or);
}

/// The action of an operator, apart from a Not behind it.
Opcode CodeGenerator::ActionOf(Operator op) const {
    switch (op) {
        case Operator::Add:
            return version_ < FirstObjectVersion ? Opcode::Add : Opcode::Add2;
        case Operator::Subtract:
            return Opcode::Subtract;
        case Operator::Multiply:
            return Opcode::Multiply;
        case Operator::Divide:
            return Opcode::Divide;
        case Operator::Modulo:
            return Opcode::Modulo;
        case Operator::BitAnd:
            return Opcode::BitAnd;
        case Operator::BitOr:
            return Opcode::BitOr;
        case Operator::BitXor:
            return Opcode::BitXor;
        case Operator::Left:
            return Opcode::BitLeft;
        case Operator::Right:
            return Opcode::BitRight;
        case Operator::UnsignedRight:
            return Opcode::BitUnsignedRight;
        case Operator::Less:
        case Operator::GreaterEqual:
            return version_ < FirstObjectVersion ? Opcode::Less : Opcode::Less2;
        case Operator::Greater:
        case Operator::LessEqual:
            return version_ >= FirstStrictVersion ? Opcode::Greater : ActionOf(Operator::Less);
        case Operator::Equal:
        case Operator::NotEqual:
            return version_ < FirstObjectVersion ? Opcode::Equals : Opcode::Equals2;
        case Operator::StrictEqual:
        case Operator::StrictNotEqual:
            return Opcode::StrictEquals;
        case Operator::WordAnd:
            return Opcode::And;
        case Operator::WordOr:
            return Opcode::Or;
        case Operator::StringAdd:
            return Opcode::StringAdd;
        case Operator::StringEqual:
        case Operator::StringNotEqual:
            return Opcode::StringEquals;
        case Operator::StringLess:
        case Operator::StringGreaterEqual:
            return Opcode::StringLess;
        case Operator::StringGreater:
        case Operator::StringLessEqual:
            return version_ >= FirstStrictVersion ? Opcode::StringGreater : Opcode::StringLess;
        default:
            return Opcode::InstanceOf;
    }
}

/// Whether an operator takes its operands the other way round: before version 6 no action tells
/// "greater".
bool CodeGenerator::IsReversed(const Node& node) const {
    return version_ < FirstStrictVersion &&
           (node.Op == Operator::Greater || node.Op == Operator::LessEqual ||
            node.Op == Operator::StringGreater || node.Op == Operator::StringLessEqual);
}

/// Without recursion on the left, where chains grow.
void CodeGenerator::Binary(const Node& node) {
    const std::size_t base = spine_.size();
    const Node* left = &node;
    while (left->Kind == NodeKind::Binary && !IsMadeApart(*left)) {
        spine_.push_back(left);
        left = left->A;
    }
    if (left->Kind == NodeKind::Binary)
        Apart(*left);
    else if (TakesNumbers(spine_.back()->Op))
        NumericOperand(*left);
    else
        Expression(*left);
    while (spine_.size() > base) {
        const Node& next = *spine_.back();
        spine_.pop_back();
        BinaryRest(next);
    }
}

/// Whether the left operand does not come first, or is no value. Simple operands change places;
/// texts in version 4 do always, for it has no action to swap them, nor one to copy what a `&&` has
/// found on its left.
bool CodeGenerator::IsMadeApart(const Node& node) const {
    if (IsLogical(node)) return version_ < FirstObjectVersion;
    if (!IsReversed(node)) return false;
    if (IsSimple(*node.A) && IsSimple(*node.B)) return true;
    const bool isText = node.Op == Operator::StringGreater || node.Op == Operator::StringLessEqual;
    return version_ < FirstObjectVersion && isText;
}

void CodeGenerator::Apart(const Node& node) {
    if (++depth_ > MaxDepth)
        Complain(node, u"式が複雑すぎます。変数に分けて下さい。");
    else if (IsLogical(node))
        TruthValue(node);
    else
        Reversed(node);
    --depth_;
}

void CodeGenerator::Reversed(const Node& node) {
    Expression(*node.B);
    Expression(*node.A);
    code_->Emit(ActionOf(node.Op));
    if (IsNegated(node.Op)) code_->Emit(Opcode::Not);
}

/// 1 or 0 of a condition.
void CodeGenerator::TruthValue(const Node& condition) {
    const Label holds = code_->NewLabel(condition.At);
    const Label end = code_->NewLabel(condition.At);
    Condition(condition, holds, true);
    PushInteger(0);
    code_->Jump(end);
    code_->Place(holds);
    PushInteger(1);
    code_->Place(end);
}

/// The right operand and the action; the left operand lies on the stack.
void CodeGenerator::BinaryRest(const Node& node) {
    if (IsLogical(node)) {
        const Label end = code_->NewLabel(node.At);
        code_->Emit(Opcode::PushDuplicate);
        if (node.Op == Operator::And) code_->Emit(Opcode::Not);
        code_->JumpIf(end);
        code_->Emit(Opcode::Pop);
        Expression(*node.B);
        return code_->Place(end);
    }
    if (IsReversed(node))
        SwapOperands(node);
    else if (TakesNumbers(node.Op))
        NumericOperand(*node.B);
    else
        Expression(*node.B);
    code_->Emit(ActionOf(node.Op));
    if (IsNegated(node.Op)) code_->Emit(Opcode::Not);
}

/// a > b is b < a. Version 4 cannot swap: -a < -b.
void CodeGenerator::SwapOperands(const Node& node) {
    const auto negate = [&] {
        PushInteger(-1);
        code_->Emit(Opcode::Multiply);
    };
    if (version_ < FirstObjectVersion) negate();
    Expression(*node.B);
    if (version_ < FirstObjectVersion)
        negate();
    else
        code_->Emit(Opcode::StackSwap);
}

void CodeGenerator::Unary(const Node& node) {
    switch (node.Op) {
        case Operator::Not:
            Expression(*node.A);
            return code_->Emit(Opcode::Not);
        case Operator::Minus:
            Numeric(0);
            Expression(*node.A);
            return code_->Emit(Opcode::Subtract);
        case Operator::Plus:
            Expression(*node.A);
            return MakeNumber();
        case Operator::BitNot:
            Expression(*node.A);
            PushInteger(-1);
            return code_->Emit(Opcode::BitXor);
        case Operator::TypeOf:
            Expression(*node.A);
            return code_->Emit(Opcode::TypeOf);
        case Operator::Void:
            Effect(*node.A);
            return Undefined();
        default:
            return Delete(*node.A);
    }
}

/// A number of the value that lies on the stack.
void CodeGenerator::MakeNumber() {
    if (version_ >= FirstObjectVersion) return code_->Emit(Opcode::ToNumber);
    PushInteger(0);
    code_->Emit(Opcode::Add);
}

void CodeGenerator::Delete(const Node& target) {
    const bool isElement = target.Kind == NodeKind::Member || target.Kind == NodeKind::Index;
    if (isElement && !IsAccessorOfBase(target)) {
        PushPlace(PlaceOf(target));
        return code_->Emit(Opcode::Delete);
    }
    if (target.Kind == NodeKind::Name) {
        const Place place = PlaceOf(target);
        PushPlace(place);
        return code_->Emit(place.Kind == PlaceKind::Variable ? Opcode::Delete2 : Opcode::Delete);
    }
    if (target.Kind == NodeKind::Text || target.Kind == NodeKind::SlashPath) {
        code_->PushText(target.Name);
        return code_->Emit(Opcode::Delete2);
    }
    if (IsEvaluation(target)) {
        PushArguments(target);
        return code_->Emit(Opcode::Delete2);
    }
    Effect(target);
    code_->Emit(ItemKind::PushBoolean, 0);
}

void CodeGenerator::Conditional(const Node& node) {
    const int known = folder_.ConditionOf(*node.A);
    if (known >= 0) return Expression(known == 1 ? *node.B : *node.C);
    const Label otherwise = code_->NewLabel(node.At);
    const Label end = code_->NewLabel(node.At);
    const bool isSwapped = EndsInNot(*node.A);
    Condition(*node.A, otherwise, !isSwapped);
    Expression(isSwapped ? *node.B : *node.C);
    code_->Jump(end);
    code_->Place(otherwise);
    Expression(isSwapped ? *node.C : *node.B);
    code_->Place(end);
}

/// Jumps to the label when the condition is as told, and goes on when not.
void CodeGenerator::Condition(const Node& first, Label label, bool jumpIf) {
    const Node* node = &first;
    while (node->Kind == NodeKind::Unary && node->Op == Operator::Not) {
        node = node->A;
        jumpIf = !jumpIf;
    }
    const int known = folder_.ConditionOf(*node);
    if (known >= 0) {
        if ((known == 1) == jumpIf) code_->Jump(label);
    } else if (IsLogical(*node)) {
        ConditionChain(*node, label, jumpIf);
    } else {
        ConditionValue(*node, label, jumpIf);
    }
}

/// a && b && c: the first that decides ends it.
void CodeGenerator::ConditionChain(const Node& node, Label label, bool jumpIf) {
    const std::size_t base = spine_.size();
    const Operator op = node.Op;
    const Node* left = &node;
    for (; left->Kind == NodeKind::Binary && left->Op == op; left = left->A)
        spine_.push_back(left->B);
    const bool decides = op == Operator::Or;
    const Label end = code_->NewLabel(node.At);
    const Label early = decides == jumpIf ? label : end;
    Condition(*left, early, decides);
    while (spine_.size() > base) {
        const Node& next = *spine_.back();
        spine_.pop_back();
        if (spine_.size() > base)
            Condition(next, early, decides);
        else
            Condition(next, label, jumpIf);
    }
    code_->Place(end);
}

/// Whether a condition costs less when it is to fail.
bool CodeGenerator::EndsInNot(const Node& condition) {
    if (condition.Kind == NodeKind::Unary) return condition.Op == Operator::Not;
    return condition.Kind == NodeKind::Binary && IsNegated(condition.Op);
}

/// Whether the action makes numbers of its operands, whatever they are.
bool CodeGenerator::TakesNumbers(Operator op) {
    return op >= Operator::Subtract && op <= Operator::UnsignedRight;
}

void CodeGenerator::NumericOperand(const Node& node) {
    if (node.Kind == NodeKind::Number)
        Numeric(node.Value);
    else
        Expression(node);
}

/// A number for an action that makes one of any value. Before functions had registers, what counts
/// is the size of the code.
void CodeGenerator::Numeric(double value) {
    const auto whole = static_cast<std::size_t>(value >= 0 && value < 10000 ? value : 0);
    if (version_ < FirstObjectVersion || version_ >= FirstRegisterVersion ||
        static_cast<double>(whole) != value || std::signbit(value))
        return code_->PushNumber(value);
    Symbol*& digits = digits_[whole];
    if (digits == nullptr) digits = symbols_.InternCopy(std::to_string(whole));
    code_->PushNumeric(digits);
}

void CodeGenerator::ConditionValue(const Node& node, Label label, bool jumpIf) {
    Expression(node);
    if (EndsInNot(node) && !jumpIf)
        code_->DropNot();
    else if (!jumpIf)
        code_->Emit(Opcode::Not);
    code_->JumpIf(label);
}

void CodeGenerator::ObjectLiteral(const Node& node) {
    for (const Node* entry = node.A; entry != nullptr; entry = entry->Next) {
        PushLiteral(*entry->D);
        Expression(*entry->A);
    }
    Numeric(node.Count);
    code_->Emit(Opcode::InitObject);
}

void CodeGenerator::ArrayLiteral(const Node& node) {
    PushArgumentsBackward(node.A, node.Count);
    Numeric(node.Count);
    code_->Emit(Opcode::InitArray);
}

}  // namespace tamber

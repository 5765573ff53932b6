#include "script/compiler/ActionCode.h"

#include <cmath>

namespace tamber {

namespace {

constexpr double IntegerLimit = 1 << 23;

constexpr std::uint32_t Item(ItemKind kind, std::uint32_t operand) {
    return static_cast<std::uint32_t>(kind) << 24 | (operand & ActionCode::MaxOperand);
}

}  // namespace

void ActionCode::Emit(ItemKind kind, std::uint32_t operand) {
    if (isReachable_) Items.push_back(Item(kind, operand));
}

void ActionCode::Emit(Opcode action) {
    if (action == Opcode::GetVariable && mayDuplicate_ && isReachable_) Deduplicate();
    Emit(ItemKind::Action, static_cast<std::uint32_t>(action));
    if (action == Opcode::Return || action == Opcode::Throw) isReachable_ = false;
}

/// A name that was pushed twice for an assignment to what it reads.
void ActionCode::Deduplicate() {
    const std::size_t size = Items.size();
    if (size < 2 || Items[size - 1] != Items[size - 2]) return;
    if (Items[size - 1] >> 24 != static_cast<std::uint32_t>(ItemKind::PushText)) return;
    Items.pop_back();
    --lastText_->Uses;
    Emit(Opcode::PushDuplicate);
}

void ActionCode::PushNumeric(Symbol* digits) {
    if (!isReachable_) return;
    ++digits->Uses;
    Emit(ItemKind::PushNumeric, digits->Index);
}

void ActionCode::DropNot() {
    constexpr std::uint32_t Not = Item(ItemKind::Action, static_cast<std::uint32_t>(Opcode::Not));
    if (isReachable_ && Items.back() == Not)
        Items.pop_back();
    else
        Emit(Opcode::Not);
}

void ActionCode::PushText(Symbol* text) {
    if (!isReachable_) return;
    ++text->Uses;
    lastText_ = text;
    Emit(ItemKind::PushText, text->Index);
}

void ActionCode::PushNumber(double value) {
    const bool isSmall = std::abs(value) < IntegerLimit && std::trunc(value) == value &&
                         !(value == 0 && std::signbit(value));
    if (isSmall)
        return Emit(ItemKind::PushInteger, static_cast<std::uint32_t>(static_cast<Long>(value)));
    if (!isReachable_) return;
    Emit(ItemKind::PushNumber, static_cast<std::uint32_t>(Numbers.size()));
    Numbers.push_back(value);
}

void ActionCode::GetUrl(const Symbol* url, const Symbol* target) {
    Emit(ItemKind::GetUrl, static_cast<std::uint32_t>(Urls.size()));
    Urls.push_back({url, target});
}

void ActionCode::CastOrCall(Symbol* name) {
    if (!isReachable_) return;
    ++name->Uses;
    Emit(ItemKind::CastOrCall, name->Index);
}

ActionCode::Label ActionCode::NewLabel(Spot spot) {
    labelUses_.push_back(0);
    LabelSpots.push_back(spot);
    return static_cast<Label>(labelUses_.size() - 1);
}

void ActionCode::Place(Label label) {
    const std::uint32_t jump = Item(ItemKind::Jump, label);
    while (labelUses_[label] > 0 && Items.back() == jump) {
        Items.pop_back();
        --labelUses_[label];
        isReachable_ = true;
    }
    if (labelUses_[label] == 0) return;
    isReachable_ = true;
    Emit(ItemKind::Label, label);
}

void ActionCode::PlaceBackward(Label label, bool isReached) {
    isReachable_ = isReachable_ || isReached;
    Emit(ItemKind::Label, label);
}

void ActionCode::Jump(Label label) {
    if (!isReachable_) return;
    Emit(ItemKind::Jump, label);
    ++labelUses_[label];
    isReachable_ = false;
}

void ActionCode::JumpIf(Label label) {
    if (!isReachable_) return;
    Emit(ItemKind::If, label);
    ++labelUses_[label];
}

void ActionCode::JumpUnlessSkipped(Label label) {
    const bool isReachable = isReachable_;
    Jump(label);
    isReachable_ = isReachable;
}

void ActionCode::Block() {
    outer_.push_back(isReachable_);
}

std::size_t ActionCode::BeginFunction(const FunctionRecord& record,
                                      const std::vector<Parameter>& names) {
    Emit(ItemKind::Function, static_cast<std::uint32_t>(Functions.size()));
    Block();
    Functions.push_back(record);
    Functions.back().FirstParameter = static_cast<std::uint32_t>(Parameters.size());
    Functions.back().ParameterCount = static_cast<std::uint32_t>(names.size());
    Parameters.insert(Parameters.end(), names.begin(), names.end());
    return Functions.size() - 1;
}

void ActionCode::EndFunction() {
    isReachable_ = outer_.back();
    outer_.pop_back();
    Emit(ItemKind::FunctionEnd);
}

void ActionCode::BeginWith(Spot spot) {
    Emit(ItemKind::With, static_cast<std::uint32_t>(Withs.size()));
    Withs.push_back(spot);
    Block();
}

void ActionCode::EndWith() {
    isReachable_ = outer_.back();
    outer_.pop_back();
    Emit(ItemKind::WithEnd);
}

void ActionCode::BeginTry(Spot spot) {
    Emit(ItemKind::Try, static_cast<std::uint32_t>(Tries.size()));
    Tries.push_back(spot);
    Block();
}

void ActionCode::EndTryBlock(ItemKind end) {
    isReachable_ = outer_.back();
    if (end == ItemKind::TryEnd) outer_.pop_back();
    Emit(end);
}

}  // namespace tamber

#pragma once

#include <vector>

#include "script/compiler/Opcode.h"
#include "script/compiler/Spot.h"
#include "script/compiler/Symbol.h"

namespace tamber {

/// Kinds of the items that code consists of before it becomes bytes.
enum class ItemKind : Byte {
    /// An action without operands.
    Action,
    PushText,
    PushNumber,
    /// An integer of 24 bits with a sign.
    PushInteger,
    /// The text of an integer, for an action that makes a number of any value.
    PushNumeric,
    PushBoolean,
    PushNull,
    PushUndefined,
    PushRegister,
    Label,
    Jump,
    If,
    Function,
    FunctionEnd,
    With,
    WithEnd,
    Try,
    /// Ends of the two blocks of a Try.
    TryBodyEnd,
    TryEnd,
    StoreRegister,
    GotoFrame,
    GotoLabel,
    GotoFrame2,
    SetTarget,
    GetUrl,
    GetUrl2,
    WaitForFrame,
    WaitForFrame2,
    /// What a call of a player's class makes of its argument on the stack: a cast, or a call where
    /// the script, perhaps behind it, has a function of that name.
    CastOrCall,
};

/// Code in the making: a list of items of 32 bits, the kind in the high 8, the operand in the rest.
/// What cannot be reached is not kept.
class ActionCode {
public:
    using Label = std::uint32_t;

    struct Parameter {
        const Symbol* Name;
        Byte Register;
    };
    struct FunctionRecord {
        /// Null for one without a name.
        const Symbol* Name = nullptr;
        Spot At;
        std::uint32_t FirstParameter = 0;
        std::uint32_t ParameterCount = 0;
        /// Written as DefineFunction2.
        bool HasRegisters = false;
        Byte RegisterCount = 0;
        std::uint16_t Flags = 0;
    };
    struct UrlRecord {
        const Symbol* Url;
        const Symbol* Target;
    };

    /// `mayDuplicate`: whether the version has an action for it.
    explicit ActionCode(bool mayDuplicate) : mayDuplicate_(mayDuplicate) {}

    void Emit(Opcode action);
    void Emit(ItemKind kind, std::uint32_t operand = 0);
    void PushText(Symbol* text);
    /// Takes back the Not that was made last; without a Not there, makes one.
    void DropNot();
    void PushNumber(double value);
    /// An integer of at most four digits for an action that makes a number of any value: its text
    /// may stand for it.
    void PushNumeric(Symbol* digits);
    void PushRegister(Byte number) { Emit(ItemKind::PushRegister, number); }
    void GetUrl(const Symbol* url, const Symbol* target);
    void CastOrCall(Symbol* name);

    Label NewLabel(Spot spot);
    /// The place that jumps made before lead to.
    void Place(Label label);
    /// A place that jumps made later lead back to. What stands before it need not reach it when
    /// such a jump is sure to.
    void PlaceBackward(Label label, bool isReached = false);
    void Jump(Label label);
    void JumpIf(Label label);
    /// A jump that the action before it may skip.
    void JumpUnlessSkipped(Label label);

    /// The number of the record, whose RegisterCount may be changed until the end.
    std::size_t BeginFunction(const FunctionRecord& record, const std::vector<Parameter>& names);
    void EndFunction();
    void BeginWith(Spot spot);
    void EndWith();
    /// What was thrown comes into register 0.
    void BeginTry(Spot spot);
    /// Ends the body or the handler.
    void EndTryBlock(ItemKind end);

    bool IsReachable() const { return isReachable_; }
    /// Whether there is more of it than operands can count.
    bool IsFull() const { return Items.size() > Most || labelUses_.size() > Most; }

    std::vector<FunctionRecord> Functions;
    std::vector<Parameter> Parameters;
    /// Where the `try` and `with` statements stand.
    std::vector<Spot> Tries;
    std::vector<Spot> Withs;
    std::vector<UrlRecord> Urls;
    std::vector<double> Numbers;
    std::vector<std::uint32_t> Items;
    /// Of each label, where that stands which it belongs to.
    std::vector<Spot> LabelSpots;

    static constexpr std::uint32_t MaxOperand = (1U << 24) - 1;

private:
    /// What one expression or statement makes before it is asked again fits above.
    static constexpr std::size_t Most = MaxOperand - 100'000;

    void Block();
    void Deduplicate();

    std::vector<std::uint32_t> labelUses_;
    std::vector<bool> outer_;
    bool isReachable_ = true;
    bool mayDuplicate_;
    Symbol* lastText_ = nullptr;
};

}  // namespace tamber

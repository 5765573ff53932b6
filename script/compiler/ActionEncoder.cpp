#include "script/compiler/ActionEncoder.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>

#include "script/compiler/NumberText.h"
#include "script/compiler/Versions.h"
#include "script/compiler/Vocabulary.h"

namespace tamber {

namespace {

constexpr std::size_t MaxRecord = 65535;
constexpr std::size_t MaxConstants = 65535;
/// Constants that a push names with one byte.
constexpr std::size_t ShortConstants = 256;
constexpr std::size_t RecordHeader = 3;
constexpr std::uint32_t HasHandlerFlag = 1;
constexpr std::uint32_t InRegisterFlag = 4;

/// Bytes that a constant saves beside its text in each push.
std::int64_t SavingOf(const Symbol& symbol, bool isShort) {
    const auto length = static_cast<std::int64_t>(symbol.Text.size()) + 1;
    return static_cast<std::int64_t>(symbol.Uses) * (length - (isShort ? 1 : 2)) - length;
}

bool IsUsedMore(const Symbol* a, const Symbol* b) {
    return a->Uses != b->Uses ? a->Uses > b->Uses : a->Index < b->Index;
}

Long SignedOperand(std::uint32_t operand) {
    return static_cast<Long>(operand << 8) >> 8;
}

}  // namespace

Bytes ActionEncoder::Encode(std::initializer_list<const ActionCode*> codes) {
    bytes_.clear();
    if (version_ >= FirstObjectVersion) WritePool();
    for (const ActionCode* code : codes) Write(*code);
    return std::move(bytes_);
}

/// Those that save bytes, the most used first; as many as a record holds.
std::vector<Symbol*> ActionEncoder::ChooseConstants() {
    std::vector<Symbol*> chosen;
    for (Symbol& symbol : symbols_.All())
        if (symbol.Uses > 1 && SavingOf(symbol, true) > 0) chosen.push_back(&symbol);
    std::sort(chosen.begin(), chosen.end(), IsUsedMore);
    if (chosen.size() > ShortConstants) {
        const auto rest =
            std::remove_if(chosen.begin() + ShortConstants, chosen.end(),
                           [](const Symbol* symbol) { return SavingOf(*symbol, false) <= 0; });
        chosen.erase(rest, chosen.end());
    }
    std::size_t size = 2;
    std::size_t count = 0;
    for (; count < chosen.size() && count < MaxConstants; ++count) {
        size += chosen[count]->Text.size() + 1;
        if (size > MaxRecord) break;
    }
    chosen.resize(count);
    return chosen;
}

void ActionEncoder::WritePool() {
    const std::vector<Symbol*> constants = ChooseConstants();
    if (constants.empty()) return;
    U8(static_cast<Byte>(Opcode::ConstantPool));
    U16(0);
    U16(static_cast<std::uint32_t>(constants.size()));
    for (std::size_t i = 0; i < constants.size(); ++i) {
        constants[i]->PoolIndex = static_cast<std::int32_t>(i);
        Chars(constants[i]->Text);
    }
    PatchU16(1, bytes_.size() - RecordHeader);
}

void ActionEncoder::Write(const ActionCode& code) {
    labels_.assign(code.LabelSpots.size(), 0);
    for (const std::uint32_t item : code.Items)
        WriteItem(code, static_cast<ItemKind>(item >> 24), item & ActionCode::MaxOperand);
    ClosePush();
    LinkJumps(code);
}

void ActionEncoder::WriteItem(const ActionCode& code, ItemKind kind, std::uint32_t operand) {
    if (WritePushed(code, kind, operand)) return;
    ClosePush();
    switch (kind) {
        case ItemKind::Action:
            U8(operand);
            if (operand >= FirstLongOpcode) U16(0);
            return;
        case ItemKind::Label:
            labels_[operand] = bytes_.size();
            return;
        case ItemKind::Jump:
            return WriteJump(Opcode::Jump, operand);
        case ItemKind::If:
            return WriteJump(Opcode::If, operand);
        case ItemKind::Function:
            return WriteFunction(code, code.Functions[operand]);
        case ItemKind::With:
            U8(static_cast<Byte>(Opcode::With));
            U16(2);
            U16(0);
            return BeginBlock(bytes_.size() - 2, code.Withs[operand]);
        case ItemKind::Try:
            return WriteTry(code.Tries[operand]);
        case ItemKind::FunctionEnd:
        case ItemKind::WithEnd:
        case ItemKind::TryEnd:
            return EndBlock(true);
        case ItemKind::TryBodyEnd:
            return EndBlock(false);
        case ItemKind::StoreRegister:
            return WriteShort(Opcode::StoreRegister, operand, 1);
        case ItemKind::GotoFrame:
            return WriteShort(Opcode::GotoFrame, operand, 2);
        case ItemKind::GotoFrame2:
            return WriteShort(Opcode::GotoFrame2, operand, 1);
        case ItemKind::GetUrl2:
            return WriteShort(Opcode::GetUrl2, operand, 1);
        case ItemKind::WaitForFrame:
            WriteShort(Opcode::WaitForFrame, operand, 3);
            bytes_.back() = 1;
            return;
        case ItemKind::WaitForFrame2:
            return WriteShort(Opcode::WaitForFrame2, 1, 1);
        case ItemKind::SetTarget:
            return WriteNamed(Opcode::SetTarget, symbols_.At(operand)->Text);
        case ItemKind::CastOrCall:
            return WriteCastOrCall(*symbols_.At(operand));
        case ItemKind::GotoLabel:
            return WriteNamed(Opcode::GotoLabel, symbols_.At(operand)->Text);
        default:
            return WriteUrl(code.Urls[operand]);
    }
}

/// False for an item that is not pushed.
bool ActionEncoder::WritePushed(const ActionCode& code, ItemKind kind, std::uint32_t operand) {
    switch (kind) {
        case ItemKind::PushText:
            WriteText(*symbols_.At(operand));
            return true;
        case ItemKind::PushNumber:
            WriteNumber(code.Numbers[operand]);
            return true;
        case ItemKind::PushInteger:
            WriteNumber(SignedOperand(operand));
            return true;
        case ItemKind::PushNumeric:
            WriteNumeric(*symbols_.At(operand));
            return true;
        case ItemKind::PushBoolean:
            OpenPush(2);
            U8(static_cast<Byte>(PushType::Boolean));
            U8(operand);
            return true;
        case ItemKind::PushNull:
            OpenPush(1);
            U8(static_cast<Byte>(PushType::Null));
            return true;
        case ItemKind::PushUndefined:
            OpenPush(1);
            U8(static_cast<Byte>(PushType::Undefined));
            return true;
        case ItemKind::PushRegister:
            OpenPush(2);
            U8(static_cast<Byte>(PushType::Register));
            U8(operand);
            return true;
        default:
            return false;
    }
}

void ActionEncoder::WriteText(const Symbol& symbol) {
    if (symbol.PoolIndex < 0) {
        OpenPush(symbol.Text.size() + 2);
        U8(static_cast<Byte>(PushType::Text));
        Chars(symbol.Text);
    } else if (symbol.PoolIndex < static_cast<std::int32_t>(ShortConstants)) {
        OpenPush(2);
        U8(static_cast<Byte>(PushType::Constant8));
        U8(static_cast<std::uint32_t>(symbol.PoolIndex));
    } else {
        OpenPush(3);
        U8(static_cast<Byte>(PushType::Constant16));
        U16(static_cast<std::uint32_t>(symbol.PoolIndex));
    }
}

/// The shortest of a truth value, the text and the integer.
void ActionEncoder::WriteNumeric(const Symbol& digits) {
    constexpr std::size_t IntegerDigits = 3;
    if (digits.Text == "0" || digits.Text == "1") {
        OpenPush(2);
        U8(static_cast<Byte>(PushType::Boolean));
        return U8(digits.Text == "1" ? 1 : 0);
    }
    if (digits.PoolIndex >= 0 || digits.Text.size() < IntegerDigits) return WriteText(digits);
    double value = 0;
    std::from_chars(digits.Text.data(), digits.Text.data() + digits.Text.size(), value);
    WriteNumber(value);
}

/// Version 4 takes numbers as their text, which is to be the player's own; from 5 on an integer, or
/// the shortest form that is exact.
void ActionEncoder::WriteNumber(double value) {
    if (version_ < FirstObjectVersion) {
        const std::string digits = NumberText(value);
        OpenPush(digits.size() + 2);
        U8(static_cast<Byte>(PushType::Text));
        return Chars(digits);
    }
    const bool isInteger = std::trunc(value) == value && std::abs(value) <= 2147483647.0 &&
                           !(value == 0 && std::signbit(value));
    const auto single = static_cast<float>(value);
    if (isInteger) {
        OpenPush(5);
        U8(static_cast<Byte>(PushType::Integer));
        U32(static_cast<std::uint32_t>(static_cast<Long>(value)));
    } else if (static_cast<double>(single) == value) {
        OpenPush(5);
        U8(static_cast<Byte>(PushType::Float));
        U32(std::bit_cast<std::uint32_t>(single));
    } else {
        const auto bits = std::bit_cast<std::uint64_t>(value);
        OpenPush(9);
        U8(static_cast<Byte>(PushType::Double));
        U32(static_cast<std::uint32_t>(bits >> 32));
        U32(static_cast<std::uint32_t>(bits));
    }
}

/// Makes room for a value of `size` bytes in a push record.
void ActionEncoder::OpenPush(std::size_t size) {
    if (isPushing_ && bytes_.size() - push_ - RecordHeader + size > MaxRecord) ClosePush();
    if (isPushing_) return;
    isPushing_ = true;
    push_ = bytes_.size();
    U8(static_cast<Byte>(Opcode::Push));
    U16(0);
}

void ActionEncoder::ClosePush() {
    if (!isPushing_) return;
    PatchU16(push_ + 1, bytes_.size() - push_ - RecordHeader);
    isPushing_ = false;
}

void ActionEncoder::WriteJump(Opcode opcode, ActionCode::Label label) {
    WriteShort(opcode, 0, 2);
    jumps_.push_back({bytes_.size() - 2, label});
}

void ActionEncoder::LinkJumps(const ActionCode& code) {
    for (const OpenJump& jump : jumps_) {
        const auto from = static_cast<std::int64_t>(jump.OffsetAt) + 2;
        const std::int64_t offset = static_cast<std::int64_t>(labels_[jump.Label]) - from;
        if (offset < INT16_MIN || offset > INT16_MAX) {
            faults_.Error(code.LabelSpots[jump.Label],
                          u"文が長すぎます。32KB を超えて飛ぶことはできません。"
                          u"中身を関数に分けて下さい。");
            break;
        }
        PatchU16(jump.OffsetAt, static_cast<std::size_t>(offset));
    }
    jumps_.clear();
}

void ActionEncoder::WriteFunction(const ActionCode& code,
                                  const ActionCode::FunctionRecord& function) {
    const std::size_t begin = bytes_.size();
    U8(static_cast<Byte>(function.HasRegisters ? Opcode::DefineFunction2 : Opcode::DefineFunction));
    U16(0);
    Chars(function.Name == nullptr ? std::string_view() : function.Name->Text);
    U16(function.ParameterCount);
    if (function.HasRegisters) {
        U8(function.RegisterCount);
        U16(function.Flags);
    }
    for (std::size_t i = 0; i < function.ParameterCount; ++i) {
        const ActionCode::Parameter& parameter = code.Parameters[function.FirstParameter + i];
        if (function.HasRegisters) U8(parameter.Register);
        Chars(parameter.Name->Text);
    }
    U16(0);
    const std::size_t length = bytes_.size() - begin - RecordHeader;
    if (length > MaxRecord) faults_.Error(function.At, u"関数の名前と引数が長すぎます。");
    PatchU16(begin + 1, length);
    BeginBlock(bytes_.size() - 2, function.At);
}

/// Flags, the lengths of body, handler and last block, and the register of what was thrown. Each
/// block opens where the one before it ends; the last, of what always runs, is not used.
void ActionEncoder::WriteTry(Spot spot) {
    constexpr std::uint32_t Size = 8;
    U8(static_cast<Byte>(Opcode::Try));
    U16(Size);
    U8(HasHandlerFlag | InRegisterFlag);
    const std::size_t lengths = bytes_.size();
    U16(0);
    U16(0);
    U16(0);
    U8(0);
    BeginBlock(lengths, spot);
}

void ActionEncoder::BeginBlock(std::size_t lengthAt, Spot spot) {
    blocks_.push_back({lengthAt, bytes_.size(), spot});
}

/// Ends a block; when it is not the last of its record, the next begins here.
void ActionEncoder::EndBlock(bool isEnd) {
    OpenBlock& block = blocks_.back();
    const std::size_t length = bytes_.size() - block.Begin;
    if (length > MaxRecord)
        faults_.Error(block.At, u"ブロックが長すぎます。64KB までです。中身を関数に分けて下さい。");
    PatchU16(block.LengthAt, length);
    if (isEnd) {
        blocks_.pop_back();
    } else {
        block.LengthAt += 2;
        block.Begin = bytes_.size();
    }
}

void ActionEncoder::WriteUrl(const ActionCode::UrlRecord& record) {
    U8(static_cast<Byte>(Opcode::GetUrl));
    U16(static_cast<std::uint32_t>(record.Url->Text.size() + record.Target->Text.size() + 2));
    Chars(record.Url->Text);
    Chars(record.Target->Text);
}

/// Whether the script has something of its own of that name, as the version compares names.
bool ActionEncoder::IsOwn(const Symbol& name) {
    if (name.IsOfScript() || version_ >= FirstCaseVersion) return name.IsOfScript();
    if (!ownNames_) {
        ownNames_.emplace();
        for (const Symbol& symbol : symbols_.All())
            if (symbol.IsOfScript()) ownNames_->insert(Lower(symbol.Text));
    }
    return ownNames_->contains(Lower(name.Text));
}

/// Version 7 checks what it casts; before, the value stays as it is.
void ActionEncoder::WriteCastOrCall(const Symbol& name) {
    if (IsOwn(name)) {
        WriteNumber(1);
        WriteText(name);
        ClosePush();
        U8(static_cast<Byte>(Opcode::CallFunction));
    } else if (version_ >= FirstRegisterVersion) {
        WriteText(name);
        ClosePush();
        for (const Opcode action : {Opcode::GetVariable, Opcode::StackSwap, Opcode::CastOp})
            U8(static_cast<Byte>(action));
    }
}

void ActionEncoder::WriteShort(Opcode opcode, std::uint32_t operand, std::size_t size) {
    U8(static_cast<Byte>(opcode));
    U16(static_cast<std::uint32_t>(size));
    for (; size > 0; --size, operand >>= 8) U8(operand);
}

void ActionEncoder::WriteNamed(Opcode opcode, std::string_view name) {
    U8(static_cast<Byte>(opcode));
    U16(static_cast<std::uint32_t>(name.size() + 1));
    Chars(name);
}

void ActionEncoder::PatchU16(std::size_t at, std::size_t value) {
    bytes_[at] = static_cast<Byte>(value);
    bytes_[at + 1] = static_cast<Byte>(value >> 8);
}

}  // namespace tamber

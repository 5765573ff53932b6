#include "script/compiler/ActionDisassembler.h"

#include <algorithm>
#include <bit>
#include <cstdio>

#include "platform/codepage.h"
#include "script/compiler/Opcode.h"
#include "script/compiler/Versions.h"

namespace tamber {

namespace {

/// Deeper blocks are indented no further.
constexpr std::size_t MaxIndent = 20;

}  // namespace

/// The operands of one record, read from the front. What lies behind them reads as zero, and makes
/// the record a damaged one.
class ActionDisassembler::Record {
public:
    explicit Record(ByteView bytes) : rest_(bytes) {}

    bool IsEmpty() const { return rest_.empty(); }
    bool IsDamaged() const { return isDamaged_; }
    std::uint32_t U8() {
        if (rest_.empty()) {
            isDamaged_ = true;
            return 0;
        }
        const std::uint32_t value = rest_[0];
        rest_ = rest_.subspan(1);
        return value;
    }
    std::uint32_t U16() {
        const std::uint32_t low = U8();
        return low | U8() << 8;
    }
    std::uint32_t U32() {
        const std::uint32_t low = U16();
        return low | U16() << 16;
    }
    std::string_view Text() {
        std::size_t length = 0;
        while (length < rest_.size() && rest_[length] != 0) ++length;
        if (length == rest_.size()) {
            isDamaged_ = true;
            return {};
        }
        const std::string_view text(reinterpret_cast<const char*>(rest_.data()), length);
        rest_ = rest_.subspan(length + 1);
        return text;
    }

private:
    ByteView rest_;
    bool isDamaged_ = false;
};

std::string ActionDisassembler::List(ByteView actions, std::string_view margin) {
    text_.clear();
    pool_.clear();
    ends_.clear();
    isDamaged_ = false;
    margin_ = margin;
    std::size_t offset = 0;
    while (offset < actions.size() && !isDamaged_) {
        while (!ends_.empty() && ends_.back() <= offset) ends_.pop_back();
        BeginLine(offset);
        const Byte code = actions[offset];
        const bool isLong = code >= FirstLongOpcode;
        const std::size_t header = isLong ? 3 : 1;
        const ByteView rest = actions.subspan(offset);
        std::size_t length = 0;
        if (isLong)
            length = rest.size() < header ? rest.size() : std::size_t{rest[1]} | rest[2] << 8;
        if (header + length > rest.size()) {
            isDamaged_ = true;
        } else {
            Record operands(rest.subspan(header, length));
            offset += header + length;
            ListAction(offset, code, operands);
            isDamaged_ = operands.IsDamaged();
        }
        if (isDamaged_) text_ += " (damaged)";
        text_ += '\n';
    }
    return std::move(text_);
}

void ActionDisassembler::BeginLine(std::size_t offset) {
    char number[32];
    std::snprintf(number, sizeof number, "%6zu  ", offset);
    text_ += margin_;
    text_ += number;
    text_.append(2 * std::min(ends_.size(), MaxIndent), ' ');
}

void ActionDisassembler::Number(std::int64_t value) {
    text_ += ' ';
    text_ += std::to_string(value);
}

void ActionDisassembler::Text(std::string_view text) {
    text_ += " \"";
    std::string decoded(text);
    if (version_ < FirstUtf8Version)
        decoded = ToNarrow(DecodeAnsi({reinterpret_cast<const Byte*>(text.data()), text.size()}));
    for (const char letter : decoded) {
        if (letter == '"' || letter == '\\') text_ += '\\';
        if (static_cast<Byte>(letter) >= ' ') {
            text_ += letter;
        } else {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\x%02X", static_cast<unsigned>(letter));
            text_ += escape;
        }
    }
    text_ += '"';
}

void ActionDisassembler::Constant(std::size_t index) {
    if (index < pool_.size()) return Text(pool_[index]);
    text_ += " constant" + std::to_string(index);
}

/// A block of no bytes has no lines.
void ActionDisassembler::OpenBlock(std::size_t begin, std::size_t length) {
    if (length > 0) ends_.push_back(begin + length);
}

/// `end`: the offset behind the record.
void ActionDisassembler::ListAction(std::size_t end, Byte code, Record& operands) {
    const char* name = OpcodeName(code);
    if (name == nullptr) {
        char unknown[16];
        std::snprintf(unknown, sizeof unknown, "Action%02X", static_cast<unsigned>(code));
        text_ += unknown;
        return;
    }
    text_ += name;
    switch (static_cast<Opcode>(code)) {
        case Opcode::Push:
            return ListPush(operands);
        case Opcode::ConstantPool:
            return ListPool(operands);
        case Opcode::Jump:
        case Opcode::If:
            return Number(static_cast<std::int64_t>(end) +
                          static_cast<std::int16_t>(operands.U16()));
        case Opcode::DefineFunction:
        case Opcode::DefineFunction2:
            return ListFunction(operands, static_cast<Opcode>(code) == Opcode::DefineFunction2,
                                end);
        case Opcode::Try:
            return ListTry(operands, end);
        case Opcode::With: {
            const std::size_t length = operands.U16();
            return OpenBlock(end, length);
        }
        case Opcode::GetUrl:
            return ListUrl(operands);
        case Opcode::SetTarget:
        case Opcode::GotoLabel:
            return Text(operands.Text());
        case Opcode::GotoFrame:
            return Number(operands.U16());
        case Opcode::WaitForFrame:
            Number(operands.U16());
            return Number(operands.U8());
        case Opcode::StoreRegister:
        case Opcode::WaitForFrame2:
        case Opcode::GetUrl2:
            return Number(operands.U8());
        case Opcode::GotoFrame2: {
            const std::uint32_t flags = operands.U8();
            Number(flags);
            if ((flags & 2) != 0) Number(operands.U16());
            return;
        }
        default:
            return;
    }
}

void ActionDisassembler::ListPush(Record& operands) {
    for (bool isFirst = true; !operands.IsEmpty() && !operands.IsDamaged(); isFirst = false) {
        if (!isFirst) text_ += ',';
        ListPushed(operands);
    }
}

void ActionDisassembler::ListPushed(Record& operands) {
    char number[40];
    const std::uint32_t type = operands.U8();
    switch (static_cast<PushType>(type)) {
        case PushType::Text:
            return Text(operands.Text());
        case PushType::Float:
            std::snprintf(number, sizeof number, " %.9gf",
                          static_cast<double>(std::bit_cast<float>(operands.U32())));
            break;
        case PushType::Null:
            text_ += " null";
            return;
        case PushType::Undefined:
            text_ += " undefined";
            return;
        case PushType::Register:
            text_ += " register" + std::to_string(operands.U8());
            return;
        case PushType::Boolean:
            text_ += operands.U8() != 0 ? " true" : " false";
            return;
        case PushType::Double: {
            const std::uint64_t high = operands.U32();
            std::snprintf(number, sizeof number, " %.17g",
                          std::bit_cast<double>(high << 32 | operands.U32()));
            break;
        }
        case PushType::Integer:
            return Number(static_cast<std::int32_t>(operands.U32()));
        case PushType::Constant8:
            return Constant(operands.U8());
        case PushType::Constant16:
            return Constant(operands.U16());
        default:
            // The lengths of what follows are not known.
            std::snprintf(number, sizeof number, " type%u", type);
            while (!operands.IsEmpty()) operands.U8();
    }
    text_ += number;
}

void ActionDisassembler::ListPool(Record& operands) {
    const std::size_t count = operands.U16();
    pool_.clear();
    for (std::size_t i = 0; i < count && !operands.IsDamaged(); ++i) {
        pool_.push_back(operands.Text());
        if (i > 0) text_ += ',';
        if (!operands.IsDamaged()) Text(pool_.back());
    }
}

void ActionDisassembler::ListFunction(Record& operands, bool hasRegisters, std::size_t end) {
    Text(operands.Text());
    const std::size_t count = operands.U16();
    std::uint32_t registers = 0;
    std::uint32_t flags = 0;
    if (hasRegisters) {
        registers = operands.U8();
        flags = operands.U16();
    }
    text_ += " (";
    for (std::size_t i = 0; i < count && !operands.IsDamaged(); ++i) {
        if (i > 0) text_ += ',';
        const std::uint32_t number = hasRegisters ? operands.U8() : 0;
        Text(operands.Text());
        if (number != 0) text_ += ":register" + std::to_string(number);
    }
    text_ += " )";
    if (hasRegisters) {
        char text[48];
        std::snprintf(text, sizeof text, " registers %u flags 0x%03X", registers, flags);
        text_ += text;
    }
    OpenBlock(end, operands.U16());
}

void ActionDisassembler::ListTry(Record& operands, std::size_t end) {
    constexpr std::uint32_t HasHandler = 1;
    constexpr std::uint32_t HasLast = 2;
    constexpr std::uint32_t InRegister = 4;
    const std::uint32_t flags = operands.U8();
    const std::size_t body = operands.U16();
    const std::size_t handler = operands.U16();
    const std::size_t last = operands.U16();
    if ((flags & InRegister) != 0)
        text_ += " register" + std::to_string(operands.U8());
    else
        Text(operands.Text());
    text_ += " to " + std::to_string(end + body);
    if ((flags & HasHandler) != 0) text_ += " catch to " + std::to_string(end + body + handler);
    if ((flags & HasLast) != 0)
        text_ += " finally to " + std::to_string(end + body + handler + last);
    OpenBlock(end, body + handler + last);
}

void ActionDisassembler::ListUrl(Record& operands) {
    Text(operands.Text());
    text_ += ',';
    Text(operands.Text());
}

}  // namespace tamber

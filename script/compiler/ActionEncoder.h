#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <unordered_set>

#include "script/compiler/ActionCode.h"
#include "script/compiler/FaultReport.h"
#include "script/compiler/SymbolTable.h"

namespace tamber {

/// Turns code into action records: chooses the constants of the pool, joins pushes, measures blocks
/// and jumps.
class ActionEncoder {
public:
    ActionEncoder(SymbolTable& symbols, Long version, FaultReport& faults)
        : symbols_(symbols), version_(version), faults_(faults) {}

    /// The constant pool that all codes share, then the codes.
    Bytes Encode(std::initializer_list<const ActionCode*> codes);

private:
    /// A block whose length stands in front of it.
    struct OpenBlock {
        std::size_t LengthAt;
        std::size_t Begin;
        Spot At;
    };
    struct OpenJump {
        std::size_t OffsetAt;
        ActionCode::Label Label;
    };

    void WritePool();
    std::vector<Symbol*> ChooseConstants();
    void Write(const ActionCode& code);
    void WriteItem(const ActionCode& code, ItemKind kind, std::uint32_t operand);
    bool WritePushed(const ActionCode& code, ItemKind kind, std::uint32_t operand);
    void WriteNumber(double value);
    void WriteText(const Symbol& symbol);
    void WriteNumeric(const Symbol& digits);
    void OpenPush(std::size_t size);
    void ClosePush();
    void WriteJump(Opcode opcode, ActionCode::Label label);
    void WriteFunction(const ActionCode& code, const ActionCode::FunctionRecord& function);
    bool IsOwn(const Symbol& name);
    void WriteCastOrCall(const Symbol& name);
    void WriteTry(Spot spot);
    void WriteUrl(const ActionCode::UrlRecord& record);
    void WriteShort(Opcode opcode, std::uint32_t operand, std::size_t size);
    void WriteNamed(Opcode opcode, std::string_view name);
    void BeginBlock(std::size_t lengthAt, Spot spot);
    void EndBlock(bool isEnd);
    void LinkJumps(const ActionCode& code);

    void U8(std::uint32_t value) { bytes_.push_back(static_cast<Byte>(value)); }
    void U16(std::uint32_t value) {
        U8(value);
        U8(value >> 8);
    }
    void U32(std::uint32_t value) {
        U16(value);
        U16(value >> 16);
    }
    void Chars(std::string_view text) {
        bytes_.insert(bytes_.end(), text.begin(), text.end());
        U8(0);
    }
    void PatchU16(std::size_t at, std::size_t value);

    SymbolTable& symbols_;
    Long version_;
    FaultReport& faults_;
    Bytes bytes_;
    /// Where the open push record begins; 0 for none.
    std::size_t push_ = 0;
    bool isPushing_ = false;
    std::vector<OpenBlock> blocks_;
    std::vector<OpenJump> jumps_;
    std::vector<std::size_t> labels_;
    /// The script's own names in lower case, once they are asked for.
    std::optional<std::unordered_set<std::string>> ownNames_;
};

}  // namespace tamber

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/types.h"

namespace tamber {

/// Lists action records as text, one action a line: its offset from the first, its name, its
/// operands. Texts stand in double quotes and in UTF-8, constants as what the pool holds, jumps as
/// the offset they lead to. Blocks of functions, `with` and `try` are indented.
class ActionDisassembler {
public:
    /// For a movie of the version: below 6 its texts are in code page 932.
    explicit ActionDisassembler(Long version) : version_(version) {}

    /// Each line begins with `margin` and ends with LF. A record that does not fit in the bytes, or
    /// in its own length, is told in the last line.
    std::string List(ByteView actions, std::string_view margin = {});
    /// Whether the last list ended at a damaged record.
    bool IsDamaged() const { return isDamaged_; }

private:
    class Record;

    void ListAction(std::size_t offset, Byte code, Record& operands);
    void ListPush(Record& operands);
    void ListPushed(Record& operands);
    void ListPool(Record& operands);
    void ListFunction(Record& operands, bool hasRegisters, std::size_t end);
    void ListTry(Record& operands, std::size_t end);
    void ListUrl(Record& operands);
    void BeginLine(std::size_t offset);
    void Number(std::int64_t value);
    void Text(std::string_view text);
    void Constant(std::size_t index);
    void OpenBlock(std::size_t begin, std::size_t length);

    Long version_;
    bool isDamaged_ = false;
    std::string_view margin_;
    std::string text_;
    std::vector<std::string_view> pool_;
    /// Ends of the blocks around.
    std::vector<std::size_t> ends_;
};

}  // namespace tamber

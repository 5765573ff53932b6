#include "script/editor/LineCommands.h"

#include <algorithm>
#include <vector>

namespace tamber {

namespace {

/// Whole lines around a selection, without the end of the last one.
struct LineBlock {
    std::size_t Start = 0;
    String Text;

    LineBlock(const ScriptText& text, std::size_t selStart, std::size_t selLength) {
        Start = text.OffsetOfLine(text.LineAt(selStart));
        std::size_t last = text.LineAt(selStart + selLength);
        // A selection that ends before the first character of a line does not mean that line.
        if (selLength > 0 && last > 0 && text.OffsetOfLine(last) == selStart + selLength &&
            text.OffsetOfLine(last) > selStart)
            --last;
        Text = text.Between(Start, text.EndOfLine(last));
    }
};

/// Calls `visit` with each line and what ends it.
template <class Visit>
void ForEachLine(StringView text, Visit visit) {
    while (true) {
        const std::size_t end = std::min(text.find_first_of(u"\r\n"), text.size());
        std::size_t ending = end < text.size() ? 1 : 0;
        if (text.substr(end).starts_with(u"\r\n")) ending = 2;
        visit(text.substr(0, end), text.substr(end, ending));
        if (ending == 0) return;
        text.remove_prefix(end + ending);
    }
}

LineEdit Replaced(const LineBlock& block, String lines) {
    LineEdit edit;
    edit.SelStart = block.Start;
    edit.SelLength = lines.size();
    edit.Edit = {block.Start, block.Text.size(), std::move(lines)};
    return edit;
}

}  // namespace

String TabUnit(Long tabWidth, bool spaces) {
    return spaces ? String(static_cast<std::size_t>(std::clamp(tabWidth, 1, 64)), u' ') : u"\t";
}

LineEdit InsertUnit(const ScriptText& text, std::size_t selStart, std::size_t selLength,
                    StringView unit) {
    const LineBlock block(text, selStart, selLength);
    String lines;
    ForEachLine(block.Text, [&](StringView line, StringView ending) {
        if (!line.empty()) lines += unit;
        lines += line;
        lines += ending;
    });
    return Replaced(block, std::move(lines));
}

LineEdit RemoveUnit(const ScriptText& text, std::size_t selStart, std::size_t selLength,
                    StringView unit) {
    const LineBlock block(text, selStart, selLength);
    bool all = true;
    String lines;
    ForEachLine(block.Text, [&](StringView line, StringView ending) {
        all &= line.empty() || line.starts_with(unit);
        lines += line.substr(std::min(line.size(), unit.size()));
        lines += ending;
    });
    if (!all) return {{selStart, 0, {}}, selStart, selLength};
    return Replaced(block, std::move(lines));
}

}  // namespace tamber

#include "script/InitBlock.h"

#include <algorithm>

#include "platform/RuntimeError.h"
#include "platform/text.h"
#include "script/ScriptScanner.h"

namespace tamber {

using namespace ScriptScanner;

namespace {

constexpr StringView StartWord = u"#initclip";
constexpr StringView EndWord = u"#endinitclip";

Long Length(StringView text) {
    return static_cast<Long>(text.size());
}

/// Position behind the end of the line that `pos` is in, 0 when the text ends first.
Long NextLine(StringView script, Long pos) {
    const std::size_t end = script.find_first_of(u"\r\n", static_cast<std::size_t>(pos - 1));
    if (end == StringView::npos) return 0;
    const bool both = script.substr(end, 2) == u"\r\n";
    return static_cast<Long>(end) + (both ? 3 : 2);
}

/// The number that a text is, -1 when it is none, does not fit, or is negative.
Long OrderOf(StringView text) {
    try {
        return IsNumeric(text) ? std::max(ToLong(text), -1) : -1;
    } catch (const RuntimeError&) {
        return -1;
    }
}

bool IsStart(StringView script, Long pos) {
    return At(script, pos) == StartWord.front() &&
           FoldCase(Between(script, pos, pos + Length(StartWord))) == StartWord;
}

/// Position of the next "#endinitclip", 0 when there is none.
Long FindEndWord(StringView script, Long pos) {
    while (true) {
        pos = SkipToToken(script, pos);
        if (AtEnd(script, pos)) return 0;
        if (Between(script, pos, pos + Length(EndWord)) == EndWord) return pos;
        pos = FindTokenEnd(script, pos, u';', u'}');
    }
}

/// Reads the block that begins at `pos`.
bool ReadBlock(StringView script, Long pos, InitBlock& block) {
    block = {};
    block.StartPos = pos;
    const Long body = NextLine(script, pos);
    if (body == 0) {
        block.Text = u"改行 が必要です。";
        return false;
    }
    block.BodyPos = body;
    const Long token = SkipBlanks(script, pos + Length(StartWord));
    if (token < body)
        block.OrderNum = OrderOf(Between(script, token, FindTokenEnd(script, token, u';', u'{')));
    const Long end = FindEndWord(script, body);
    if (end == 0) {
        block.Text = u"#endinitclip が必要です。";
        return false;
    }
    block.EndPos = end + Length(EndWord) - 1;
    block.Text = Between(script, body, end);
    return true;
}

}  // namespace

bool FindInitBlocks(StringView script, std::vector<InitBlock>& blocks) {
    blocks.clear();
    for (Long pos = SkipToToken(script, 1); !AtEnd(script, pos); pos = SkipToToken(script, pos)) {
        if (!IsStart(script, pos)) {
            pos = FindTokenEnd(script, pos, u';', u'}');
            continue;
        }
        if (!ReadBlock(script, pos, blocks.emplace_back())) return false;
        pos = blocks.back().EndPos + 1;
    }
    return true;
}

bool ExtractInitClip(String& script, InitBlock& block) {
    std::vector<InitBlock> blocks;
    const bool complete = FindInitBlocks(script, blocks);
    block = blocks.empty() ? InitBlock() : blocks.back();
    if (!complete) blocks.pop_back();
    String rest;
    Long copied = 1;
    for (const InitBlock& cut : blocks) {
        rest += Between(script, copied, cut.StartPos);
        copied = cut.EndPos + 1;
    }
    rest += Between(script, copied, Length(script) + 1);
    script = std::move(rest);
    return complete;
}

}  // namespace tamber

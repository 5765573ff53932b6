#include "platform/codepage.h"
#include "script/ClassScript.h"
#include "script/EventBlock.h"
#include "script/InitBlock.h"
#include "script/ScriptScanner.h"

namespace {

using namespace tamber;

void Check(bool holds) {
    if (!holds) __builtin_trap();
}

/// Each block stands behind the one before it, and a fault says what and where it is.
void ReadEvents(StringView script, EventScript kind, Long version) {
    const auto end = static_cast<Long>(script.size()) + 1;
    EventBlock block;
    Long before = 0;
    for (Long pos = 0;;) {
        ++pos;
        const bool read = ParseEventBlock(script, pos, block, kind, version);
        if (read && pos == 0) return;
        Check(block.Position >= before && block.Position <= end);
        if (!read) {
            Check(!block.Text.empty());
            return;
        }
        Check(block.Flags != 0 && block.KeyCode >= 0 && block.KeyCode < 128);
        Check(ScriptScanner::At(script, pos) == u'}' && pos > before);
        const Long body = pos - static_cast<Long>(block.Text.size());
        Check(ScriptScanner::Between(script, body, pos) == block.Text && body == block.Position);
        before = pos;
    }
}

/// What is left and what was cut are the script.
void ReadInitBlocks(const String& script) {
    std::vector<InitBlock> blocks;
    const bool complete = FindInitBlocks(script, blocks);
    String rest = script;
    InitBlock last;
    Check(ExtractInitClip(rest, last) == complete);
    Check(complete || !blocks.back().Text.empty());
    std::size_t cut = 0;
    Long before = 0;
    for (const InitBlock& block : blocks) {
        Check(block.StartPos > before && block.OrderNum >= -1);
        if (&block == &blocks.back() && !complete) break;
        Check(ScriptScanner::Between(script, block.BodyPos, block.EndPos + 1) ==
              block.Text + u"#endinitclip");
        cut += static_cast<std::size_t>(block.EndPos - block.StartPos + 1);
        before = block.EndPos;
    }
    Check(rest.size() + cut == script.size());
    Check(blocks.empty() ||
          (last.Text == blocks.back().Text && last.OrderNum == blocks.back().OrderNum));
}

void ReadMembers(StringView body) {
    ClassMember member;
    for (Long pos = 1, before = 0; ParseClassMember(body, pos, member, u"C"); before = pos)
        Check(pos > before && pos <= static_cast<Long>(body.size()) + 1);
    const String script = GenerateClassScript(body, {u"a.C", u"B", {u"link"}});
    Check(script.starts_with(u"#initclip\r\n") && script.ends_with(u"}\r\n#endinitclip"));
}

}  // namespace

// The first byte chooses the version and the kind of the script, the rest is the script.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const String script = DecodeAnsi({data + 1, size - 1});
    const EventScript kind = (data[0] & 8) != 0 ? EventScript::Clip : EventScript::Button;
    ReadEvents(script, kind, 5 + data[0] % 4);
    ReadInitBlocks(script);
    ReadMembers(script);
    return 0;
}

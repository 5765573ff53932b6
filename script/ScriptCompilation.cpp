#include "script/ScriptCompilation.h"

#include <algorithm>

#include "platform/codepage.h"
#include "platform/text.h"
#include "script/compiler/compileSWFActionCode.h"

namespace tamber {

namespace {

constexpr Long NarrowEvents = 0xFFFF;

/// Takes the first line off a text; its end is LF.
StringView TakeLine(StringView& text) {
    const std::size_t end = std::min(text.find(u'\n'), text.size());
    const StringView line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return line;
}

/// Text behind the first ":", or all of it.
StringView BehindColon(StringView line) {
    const std::size_t colon = line.find(u':');
    return colon == StringView::npos ? line : line.substr(colon + 1);
}

void AppendLine(String& text, StringView line) {
    text.append(line).append(u"\r\n");
}
void CutLineEnd(String& text) {
    if (text.ends_with(u"\r\n")) text.resize(text.size() - 2);
}

/// Text between the first two single quotes.
StringView BetweenQuotes(StringView text) {
    const std::size_t open = text.find(u'\'');
    if (open == StringView::npos) return {};
    const std::size_t close = text.find(u'\'', open + 1);
    return close == StringView::npos ? StringView() : text.substr(open + 1, close - open - 1);
}

}  // namespace

bool CompileActionScript(Bytes& result, StringView text, Long version, bool unicodeAllowed) {
    Bytes bytes = CompilerSource(text, version, unicodeAllowed);
    bytes.push_back(0);
    const Byte* out = nullptr;
    Long length = 0;
    const bool compiled = compileSWFActionCode(reinterpret_cast<const char*>(bytes.data()), version,
                                               &out, &length) != 0;
    result.assign(out, out + length);
    return compiled;
}

CompilerDiagnostic ParseCompilerDiagnostic(ByteView bytes, Long firstLine) {
    const String decoded = DecodeAnsi(bytes);
    StringView rest = decoded;
    CompilerDiagnostic diagnostic;
    StringView line = BehindColon(TakeLine(rest));
    while (!line.starts_with(u"Line ")) {
        AppendLine(diagnostic.Header, line);
        if (rest.empty()) break;
        line = TakeLine(rest);
    }
    CutLineEnd(diagnostic.Header);
    if (line.starts_with(u"Line ")) {
        diagnostic.Line = LeadingNumber(line.substr(5)) + firstLine - 1;
        diagnostic.Token = BetweenQuotes(BehindColon(line));
    }
    bool inTail = false;
    while (!rest.empty()) {
        line = TakeLine(rest);
        if (!inTail && !line.starts_with(u"Warning:")) continue;
        AppendLine(diagnostic.Tail, inTail ? line : BehindColon(line));
        inTail = true;
    }
    CutLineEnd(diagnostic.Tail);
    return diagnostic;
}

bool CompileEventBlocks(std::vector<SwfEventActions>& result, StringView script, EventScript kind,
                        ScriptCompiler& compiler) {
    const Long version = compiler.Version();
    result.clear();
    EventBlock block;
    for (Long pos = 0;;) {
        ++pos;
        SwfEventActions actions;
        const bool read = ParseEventBlock(script, pos, block, kind, version);
        if (read && pos == 0) return true;
        if (!read) break;
        const CompiledScript& compiled = compiler.Compile(block.Text);
        if (!compiled.IsCompiled()) break;
        actions.Actions = compiled.Actions;
        if (actions.Actions.empty()) continue;
        actions.Flags = version < WideEventVersion ? block.Flags & NarrowEvents : block.Flags;
        // An entry without events would end the list.
        if (actions.Flags == 0) continue;
        actions.KeyCode = static_cast<Byte>(block.KeyCode);
        result.push_back(std::move(actions));
    }
    result.clear();
    return false;
}

}  // namespace tamber

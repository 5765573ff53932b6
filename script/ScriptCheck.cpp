#include "script/ScriptCheck.h"

#include "platform/text.h"
#include "script/EventBlock.h"
#include "script/InitBlock.h"
#include "script/ScriptCompilation.h"
#include "script/ScriptPreprocessor.h"
#include "script/ScriptScanner.h"

namespace tamber {

namespace {

constexpr Long InitClipVersion = 6;
constexpr StringView SyntaxFault = u"文法に誤りがあります。";

/// A fault at a line, with the line's number in the message.
ScriptCheckResult FaultAt(Long line, StringView text, StringView more = {}) {
    return {false, line, String(text) + u"（行番号：" + ToText(line) + u"）" + String(more)};
}

ScriptCheckResult IncludeFault(Long result, const String& chain) {
    if (result < 0)
        return FaultAt(-result, u"ファイルが見つかりません。\r\n", u"\r\n\r\n[" + chain + u"]");
    if (chain.empty()) return FaultAt(result, SyntaxFault);
    return FaultAt(result, u"循環参照です。", u"\r\n\r\n" + ReplaceAll(chain, u",", u" →\r\n"));
}

/// `pos` is where the text begins in the script.
ScriptCheckResult CheckText(StringView script, Long pos, StringView text, Long version) {
    Bytes bytes;
    if (CompileActionScript(bytes, text, version, true)) return {};
    // Behind as many line ends as in the script each line that the diagnostics name is right.
    const auto linesBefore = static_cast<std::size_t>(ScriptScanner::LineOf(script, pos) - 1);
    CompileActionScript(bytes, String(linesBefore, u'\n').append(text), version, true);
    const CompilerDiagnostic fault = ParseCompilerDiagnostic(bytes, 1);
    const String rule(37, u'-');
    return FaultAt(fault.Line, SyntaxFault,
                   u"\r\n\r\n[" + fault.Token + u"]\r\n\r\n" + rule + u"\r\n" + fault.Header +
                       u"\r\n" + rule + u"\r\n" + fault.Tail);
}

ScriptCheckResult CheckEvents(StringView script, EventScript kind, Long version) {
    EventBlock block;
    for (Long pos = 0;;) {
        ++pos;
        if (!ParseEventBlock(script, pos, block, kind, version))
            return FaultAt(ScriptScanner::LineOf(script, block.Position), block.Text);
        if (pos == 0) return {};
        const ScriptCheckResult result = CheckText(script, block.Position, block.Text, version);
        if (!result.Ok) return result;
    }
}

/// Leaves nothing of a block but its line ends.
void BlankOut(String& script, const InitBlock& block) {
    for (auto i = static_cast<std::size_t>(block.StartPos - 1);
         i < static_cast<std::size_t>(block.EndPos); ++i)
        if (script[i] != u'\r' && script[i] != u'\n') script[i] = u' ';
}

ScriptCheckResult CheckFrame(String script, Long version) {
    std::vector<InitBlock> blocks;
    if (version >= InitClipVersion && !FindInitBlocks(script, blocks))
        return FaultAt(ScriptScanner::LineOf(script, blocks.back().StartPos), blocks.back().Text);
    for (const InitBlock& block : blocks) {
        const ScriptCheckResult result = CheckText(script, block.BodyPos, block.Text, version);
        if (!result.Ok) return result;
        BlankOut(script, block);
    }
    return CheckText(script, 1, script, version);
}

}  // namespace

ScriptCheckResult CheckScript(StringView script, ScriptKind kind, Long version,
                              StringView projectFolder) {
    ScriptPreprocessor preprocessor;
    preprocessor.ProjectFolder = projectFolder;
    if (kind == ScriptKind::Frame)
        preprocessor.CompileInclude = [version](const String& text) {
            return CheckFrame(text, version).Ok;
        };
    String text(script);
    const Long failed = preprocessor.PreprocessScript(text, {});
    ScriptCheckResult result;
    if (failed != 0)
        result = IncludeFault(failed, preprocessor.Chain());
    else if (kind == ScriptKind::Frame)
        result = CheckFrame(std::move(text), version);
    else
        result = CheckEvents(
            text, kind == ScriptKind::Button ? EventScript::Button : EventScript::Clip, version);
    if (result.Ok) result.Message = u"構文エラーはありません。";
    return result;
}

}  // namespace tamber

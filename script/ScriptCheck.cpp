#include "script/ScriptCheck.h"

#include <algorithm>

#include "platform/text.h"
#include "script/EventBlock.h"
#include "script/InitBlock.h"
#include "script/ScriptCompilation.h"
#include "script/ScriptPreprocessor.h"
#include "script/ScriptScanner.h"

namespace tamber {

namespace {

constexpr StringView SyntaxFault = u"文法に誤りがあります。";
/// Stands behind the number of a line.
constexpr StringView LineWord = u"行目";

/// A fault at a line, with the line's number in the message.
ScriptCheckResult FaultAt(Long line, StringView text, StringView more = {}) {
    return {false, line, String(text) + u"（行番号：" + ToText(line) + u"）" + String(more)};
}

ScriptCheckResult IncludeFault(Long result, const ScriptPreprocessor& preprocessor) {
    const String& chain = preprocessor.Chain();
    const String file = u"\r\n\r\n[" + chain + u"]";
    if (result < 0) return FaultAt(-result, u"ファイルが見つかりません。\r\n", file);
    if (preprocessor.IsExceeded())
        return FaultAt(result, u"インクルードが深すぎるか、大きすぎます。", file);
    if (chain.empty()) return FaultAt(result, SyntaxFault);
    return FaultAt(result, u"循環参照です。", u"\r\n\r\n" + ReplaceAll(chain, u",", u" →\r\n"));
}

/// Leaves nothing of a block but its line ends.
void BlankOut(String& script, const InitBlock& block) {
    for (auto i = static_cast<std::size_t>(block.StartPos - 1);
         i < static_cast<std::size_t>(block.EndPos); ++i)
        if (script[i] != u'\r' && script[i] != u'\n') script[i] = u' ';
}

/// Looks through a script in which files were put.
class ExpandedCheck {
public:
    /// `lines` knows where the script's lines come from.
    ExpandedCheck(const ScriptPreprocessor& lines, Long version, bool hasInitBlocks)
        : lines_(lines), version_(version), hasInitBlocks_(hasInitBlocks) {}

    ScriptCheckResult Frame(String script) const {
        std::vector<InitBlock> blocks;
        if (hasInitBlocks_ && version_ >= InitClipVersion && !FindInitBlocks(script, blocks))
            return FaultOf(script, blocks.back().StartPos, blocks.back().Text);
        for (const InitBlock& block : blocks) {
            const ScriptCheckResult result = Text(script, block.BodyPos, block.Text);
            if (!result.Ok) return result;
            BlankOut(script, block);
        }
        return Text(script, 1, script);
    }

    ScriptCheckResult Events(StringView script, EventScript kind) const {
        EventBlock block;
        for (Long pos = 0;;) {
            ++pos;
            if (!ParseEventBlock(script, pos, block, kind, version_))
                return FaultOf(script, block.Position, block.Text);
            if (pos == 0) return {};
            const ScriptCheckResult result = Text(script, block.Position, block.Text);
            if (!result.Ok) return result;
        }
    }

private:
    ScriptCheckResult FaultOf(StringView script, Long pos, StringView text) const {
        return FaultAt(lines_.OuterLine(ScriptScanner::LineOf(script, pos)), text);
    }

    /// `pos` is where the text begins in the script.
    ScriptCheckResult Text(StringView script, Long pos, StringView text) const {
        Bytes bytes;
        if (CompileActionScript(bytes, text, version_, true)) return {};
        // Behind as many line ends as in the script each line that the diagnostics name is right.
        const auto linesBefore = static_cast<std::size_t>(ScriptScanner::LineOf(script, pos) - 1);
        CompileActionScript(bytes, String(linesBefore, u'\n').append(text), version_, true);
        const CompilerDiagnostic fault = ParseCompilerDiagnostic(bytes, 1);
        const String rule(37, u'-');
        return FaultAt(lines_.OuterLine(fault.Line), SyntaxFault,
                       u"\r\n\r\n[" + fault.Token + u"]\r\n\r\n" + rule + u"\r\n" +
                           WithOuterLines(fault.Header) + u"\r\n" + rule + u"\r\n" +
                           WithOuterLines(fault.Tail));
    }

    /// Messages that follow the first begin with their lines.
    String WithOuterLines(StringView text) const {
        String result;
        while (!text.empty()) {
            const std::size_t end = std::min(text.find(u'\n'), text.size() - 1) + 1;
            StringView line = text.substr(0, end);
            text.remove_prefix(end);
            const std::size_t digits = std::min(line.find_first_not_of(u"0123456789"), line.size());
            if (digits > 0 && line.substr(digits).starts_with(LineWord)) {
                result += ToText(lines_.OuterLine(LeadingNumber(line)));
                line.remove_prefix(digits);
            }
            result += line;
        }
        return result;
    }

    const ScriptPreprocessor& lines_;
    Long version_;
    bool hasInitBlocks_;
};

/// Included texts are compiled by themselves first, and then where they stand.
ScriptCheckResult CheckFrame(StringView script, ScriptPreprocessor& preprocessor, Long version,
                             bool hasInitBlocks) {
    preprocessor.CompileInclude = [&](const String& text) {
        return ExpandedCheck(ScriptPreprocessor(), version, hasInitBlocks).Frame(text).Ok;
    };
    String text(script);
    Long failed = preprocessor.PreprocessScript(text, {});
    preprocessor.CompileInclude = nullptr;
    if (failed != 0) return IncludeFault(failed, preprocessor);
    const ExpandedCheck check(preprocessor, version, hasInitBlocks);
    const ScriptCheckResult result = check.Frame(std::move(text));
    if (!result.Ok || !preprocessor.HasIncluded()) return result;
    text = script;
    failed = preprocessor.PreprocessScript(text, {});
    return failed != 0 ? IncludeFault(failed, preprocessor) : check.Frame(std::move(text));
}

ScriptCheckResult CheckEvents(StringView script, ScriptPreprocessor& preprocessor, ScriptKind kind,
                              Long version) {
    String text(script);
    const Long failed = preprocessor.PreprocessScript(text, {});
    if (failed != 0) return IncludeFault(failed, preprocessor);
    return ExpandedCheck(preprocessor, version, false)
        .Events(text, kind == ScriptKind::Button ? EventScript::Button : EventScript::Clip);
}

}  // namespace

ScriptCheckResult CheckScript(StringView script, ScriptKind kind, Long version,
                              StringView projectFolder, bool hasInitBlocks) {
    ScriptPreprocessor preprocessor;
    preprocessor.ProjectFolder = projectFolder;
    ScriptCheckResult result = kind == ScriptKind::Frame
                                   ? CheckFrame(script, preprocessor, version, hasInitBlocks)
                                   : CheckEvents(script, preprocessor, kind, version);
    if (result.Ok) result.Message = u"構文エラーはありません。";
    return result;
}

}  // namespace tamber

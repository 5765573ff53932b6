#include "script/ScriptCheck.h"

#include <algorithm>

#include "platform/codepage.h"
#include "platform/text.h"
#include "script/EventBlock.h"
#include "script/InitBlock.h"
#include "script/ScriptPreprocessor.h"
#include "script/ScriptScanner.h"
#include "script/compiler/Diagnostics.h"

namespace tamber {

namespace {

constexpr StringView SyntaxFault = u"文法に誤りがあります。";

/// A fault at a line, with the line's number in the message.
ScriptCheckResult FaultAt(Long line, StringView text, StringView more = {}) {
    ScriptCheckResult result;
    result.Ok = false;
    result.Line = line;
    result.Message = String(text) + u"（行番号：" + ToText(line) + u"）" + String(more);
    return result;
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
    ExpandedCheck(const ScriptPreprocessor& lines, ScriptCompiler& compiler, bool hasInitBlocks)
        : lines_(lines), compiler_(compiler), hasInitBlocks_(hasInitBlocks) {}

    ScriptCheckResult Frame(String script) const {
        std::vector<InitBlock> blocks;
        if (hasInitBlocks_ && compiler_.Version() >= InitClipVersion &&
            !FindInitBlocks(script, blocks))
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
            if (!ParseEventBlock(script, pos, block, kind, compiler_.Version()))
                return FaultOf(script, block.Position, block.Text);
            if (pos == 0) return {};
            const ScriptCheckResult result = Text(script, block.Position, block.Text);
            if (!result.Ok) return result;
        }
    }

private:
    ScriptCheckResult FaultOf(StringView script, Long pos, StringView text) const {
        ScriptCheckResult result =
            FaultAt(lines_.OuterLine(ScriptScanner::LineOf(script, pos)), text);
        if (!lines_.HasIncluded()) result.Offset = std::max(pos - 1, 0);
        return result;
    }

    /// `pos` is where the text begins in the script.
    ScriptCheckResult Text(StringView script, Long pos, StringView text) const {
        const CompiledScript& compiled = compiler_.Compile(text);
        if (compiled.IsCompiled()) return {};
        const Long linesBefore = ScriptScanner::LineOf(script, pos) - 1;
        const Diagnostic first = InScript(compiled.Errors.front(), linesBefore);
        String header = u" " + DiagnosticMessage(first);
        for (std::size_t i = 1; i < compiled.Errors.size(); ++i)
            header += u"\r\n" + LineOf(compiled.Errors[i], linesBefore);
        String tail;
        for (const Diagnostic& warning : compiled.Warnings)
            tail += (tail.empty() ? u" " : u"\r\n") + LineOf(warning, linesBefore);
        const String token = TokenText(first.Token, compiler_.Version());
        const String rule(37, u'-');
        ScriptCheckResult result =
            FaultAt(first.Line, SyntaxFault,
                    InCodePage(u"\r\n\r\n[" + token + u"]\r\n\r\n" + rule + u"\r\n" + header +
                               u"\r\n" + rule + u"\r\n" + tail));
        result.Token = token;
        if (!lines_.HasIncluded())
            result.Offset = pos - 1 + OffsetOf(first, text, compiler_.Version());
        return result;
    }

    /// The compiler's messages are told in the code page, whatever the script's characters.
    static String InCodePage(StringView text) { return DecodeAnsi(EncodeAnsi(text)); }

    String LineOf(const Diagnostic& diagnostic, Long linesBefore) const {
        return DiagnosticLine(InScript(diagnostic, linesBefore), compiler_.Version());
    }

    /// A diagnostic of a text that stands behind some lines of the script.
    Diagnostic InScript(Diagnostic diagnostic, Long linesBefore) const {
        diagnostic.Line = lines_.OuterLine(diagnostic.Line + linesBefore);
        if (diagnostic.OpenLine != 0)
            diagnostic.OpenLine = lines_.OuterLine(diagnostic.OpenLine + linesBefore);
        return diagnostic;
    }

    const ScriptPreprocessor& lines_;
    ScriptCompiler& compiler_;
    bool hasInitBlocks_;
};

/// Included texts are compiled by themselves first, and then where they stand.
ScriptCheckResult CheckFrame(StringView script, ScriptPreprocessor& preprocessor,
                             ScriptCompiler& compiler, bool hasInitBlocks) {
    preprocessor.CompileInclude = [&](const String& text) {
        return ExpandedCheck(ScriptPreprocessor(), compiler, hasInitBlocks).Frame(text).Ok;
    };
    String text(script);
    Long failed = preprocessor.PreprocessScript(text, {});
    preprocessor.CompileInclude = nullptr;
    if (failed != 0) return IncludeFault(failed, preprocessor);
    const ExpandedCheck check(preprocessor, compiler, hasInitBlocks);
    const ScriptCheckResult result = check.Frame(std::move(text));
    if (!result.Ok || !preprocessor.HasIncluded()) return result;
    text = script;
    failed = preprocessor.PreprocessScript(text, {});
    return failed != 0 ? IncludeFault(failed, preprocessor) : check.Frame(std::move(text));
}

ScriptCheckResult CheckEvents(StringView script, ScriptPreprocessor& preprocessor, ScriptKind kind,
                              ScriptCompiler& compiler) {
    String text(script);
    const Long failed = preprocessor.PreprocessScript(text, {});
    if (failed != 0) return IncludeFault(failed, preprocessor);
    return ExpandedCheck(preprocessor, compiler, false)
        .Events(text, kind == ScriptKind::Button ? EventScript::Button : EventScript::Clip);
}

}  // namespace

ScriptCheckResult CheckScript(StringView script, ScriptKind kind, Long version,
                              StringView projectFolder, bool hasInitBlocks) {
    ScriptCompiler compiler(version);
    return CheckScript(script, kind, compiler, projectFolder, hasInitBlocks);
}

ScriptCheckResult CheckScript(StringView script, ScriptKind kind, ScriptCompiler& compiler,
                              StringView projectFolder, bool hasInitBlocks) {
    ScriptPreprocessor preprocessor;
    preprocessor.ProjectFolder = projectFolder;
    ScriptCheckResult result = kind == ScriptKind::Frame
                                   ? CheckFrame(script, preprocessor, compiler, hasInitBlocks)
                                   : CheckEvents(script, preprocessor, kind, compiler);
    if (result.Ok) result.Message = u"構文エラーはありません。";
    return result;
}

}  // namespace tamber

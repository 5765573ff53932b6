#include "script/ScriptPreprocessor.h"

#include <algorithm>

#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "script/ScriptScanner.h"

namespace tamber {

using namespace ScriptScanner;

namespace {

constexpr StringView FileWord = u"#file";
constexpr StringView IncludeWord = u"#include";

/// Files that include files that include files, so that a set of them cannot grow without end.
constexpr std::size_t MostExpanded = std::size_t{64} << 20;
constexpr std::size_t CostOfFile = 4096;
constexpr std::size_t DeepestInclude = 200;

struct EncodingWord {
    StringView Word;
    TextEncoding Encoding;
};

constexpr EncodingWord EncodingWords[] = {
    {u"jis", TextEncoding::Jis},         {u"sjis", TextEncoding::Sjis},
    {u"euc", TextEncoding::Euc},         {u"utf8", TextEncoding::Utf8},
    {u"unicode", TextEncoding::Unicode}, {u"utf7", TextEncoding::Utf7},
};

TextEncoding EncodingOf(StringView word) {
    const String folded = FoldCase(Trim(word));
    for (const EncodingWord& entry : EncodingWords)
        if (entry.Word == folded) return entry.Encoding;
    return TextEncoding::Detect;
}

bool IsQuote(char16_t c) {
    return c == u'"' || c == u'\'';
}
bool IsLineEnd(char16_t c) {
    return c == u'\r' || c == u'\n';
}
bool EndsWord(char16_t c) {
    return IsBlank(c) || IsPunctuation(c) || IsQuote(c) || c == u'/' || c == u'*';
}

bool HasDrive(StringView cell) {
    return Like(FoldCase(cell), u"[a-z]:\\*");
}

}  // namespace

/// The walk over one text, whether the script or a file of it.
class ScriptExpansion {
public:
    ScriptExpansion(ScriptPreprocessor& settings, const String& text, StringView baseDir,
                    std::size_t depth)
        : settings_(settings), text_(text), baseDir_(baseDir), depth_(depth) {}

    /// 0, or the line as PreprocessScript tells it.
    Long Run() {
        while (result_ == 0 && !AtEnd(text_, pos_)) Step();
        Put(Between(text_, copied_, static_cast<Long>(text_.size()) + 1));
        return result_;
    }
    String TakeOutput() { return std::move(output_); }

private:
    void Put(StringView part) {
        output_ += part;
        outputLine_ += LineOf(part, static_cast<Long>(part.size()) + 1) - 1;
    }

    void Step() {
        const char16_t c = At(text_, pos_);
        if (IsLineEnd(c)) {
            PassLineEnd();
        } else if (inComment_) {
            const bool closes = c == u'*' && At(text_, pos_ + 1) == u'/';
            inComment_ = !closes;
            pos_ += closes ? 2 : 1;
        } else if (IsQuote(c)) {
            PassString(c);
        } else if (c == u'/') {
            PassSlash();
        } else if (EndsWord(c)) {
            ++pos_;
        } else {
            PassWord();
        }
    }

    void PassLineEnd() {
        if (At(text_, pos_) == u'\r' && At(text_, pos_ + 1) == u'\n') ++pos_;
        ++pos_;
        ++line_;
    }
    /// Steps to `end`, counting the lines that are passed.
    void MoveTo(Long end) {
        while (pos_ < end) {
            if (IsLineEnd(At(text_, pos_)))
                PassLineEnd();
            else
                ++pos_;
        }
    }
    void PassString(char16_t quote) {
        Long end = pos_ + 1;
        while (!AtEnd(text_, end) && At(text_, end) != quote)
            end += At(text_, end) == u'\\' ? 2 : 1;
        MoveTo(std::min(end + 1, static_cast<Long>(text_.size()) + 1));
    }
    void PassSlash() {
        const char16_t next = At(text_, pos_ + 1);
        if (next == u'/')
            while (!AtEnd(text_, pos_) && !IsLineEnd(At(text_, pos_))) ++pos_;
        else if (next == u'*')
            pos_ += 2;
        else
            ++pos_;
        inComment_ = next == u'*';
    }
    void PassWord() {
        const Long start = pos_;
        while (!AtEnd(text_, pos_) && !EndsWord(At(text_, pos_))) ++pos_;
        if (At(text_, start) != u'#') return;
        const String word = FoldCase(Between(text_, start, pos_));
        if (word == FileWord || word == IncludeWord) PassDirective(start);
    }

    /// The next ">" from the cursor on, the text's end when there is none. A text without any is
    /// looked through once, however many directives it has.
    Long NextBracket() {
        if (bracket_ < pos_) {
            const std::size_t found = text_.find(u'>', static_cast<std::size_t>(pos_ - 1));
            bracket_ = static_cast<Long>(std::min(found, text_.size())) + 1;
        }
        return bracket_;
    }

    /// `start` is where the directive begins; the cursor stands behind its word.
    void PassDirective(Long start) {
        const Long line = line_;
        TextEncoding encoding = TextEncoding::Detect;
        MoveTo(SkipBlanks(text_, pos_));
        if (At(text_, pos_) == u'<') {
            const Long close = NextBracket();
            if (AtEnd(text_, close)) return;
            encoding = EncodingOf(Between(text_, pos_ + 1, close));
            MoveTo(SkipBlanks(text_, close + 1));
        }
        const char16_t quote = At(text_, pos_);
        if (!IsQuote(quote)) return;
        const std::size_t close = text_.find(quote, static_cast<std::size_t>(pos_));
        const Long end = close == String::npos ? static_cast<Long>(text_.size()) + 1
                                               : static_cast<Long>(close) + 1;
        const String name(Between(text_, pos_ + 1, end));
        MoveTo(std::min(end + 1, static_cast<Long>(text_.size()) + 1));
        if (name.empty()) return;
        Put(Between(text_, copied_, start));
        copied_ = pos_;
        Include(name, encoding, line);
    }

    void Fail(Long result, String chain) {
        result_ = result;
        settings_.chain_ = std::move(chain);
    }

    void Exceed(Long line, const String& path) {
        settings_.isExceeded_ = true;
        Fail(line, path);
    }

    void Include(StringView name, TextEncoding encoding, Long line) {
        String path;
        if (!FindFile(name, path)) return Fail(-line, std::move(path));
        const String& chain = settings_.chain_;
        const String folded = FoldCase(u"," + chain);
        if (folded.find(u"," + FoldCase(path) + u",") != String::npos)
            return Fail(line, chain + path);
        if (depth_ >= DeepestInclude) return Exceed(line, path);
        Bytes bytes;
        if (!ReadFileBytes(path, bytes)) return Fail(-line, std::move(path));
        settings_.expandedSize_ += bytes.size() + CostOfFile;
        if (settings_.expandedSize_ > MostExpanded) return Exceed(line, path);
        IncludeText(WithCrLf(DecodeText(bytes, encoding)), path, line);
    }

    void IncludeText(const String& text, const String& path, Long line) {
        const String outer = settings_.chain_;
        const std::function<bool(const String&)> compile = settings_.CompileInclude;
        settings_.chain_ += path + u",";
        settings_.CompileInclude = nullptr;
        ScriptExpansion inner(settings_, text, GetFileFolder(path), depth_ + 1);
        const Long failed = inner.Run();
        settings_.CompileInclude = compile;
        if (failed != 0) {
            result_ = failed < 0 ? -line : line;
            return;
        }
        settings_.chain_ = outer;
        const String included = inner.TakeOutput();
        const Long first = outputLine_;
        if (!compile)
            Put(included);
        else if (!compile(included))
            Fail(line, {});
        if (depth_ == 0) settings_.included_.push_back({first, outputLine_, line, line_});
    }

    /// False when there is no such file: `path` is then the place that was looked at last.
    bool FindFile(StringView name, String& path) const {
        const String cell = ReplaceAll(name, u"/", u"\\");
        const String own = PathFromCell(cell);
        // Without drives a path from the root looks like one from a folder of the search.
        path = own;
        if ((HasDrive(cell) || own.starts_with(u'/')) && FileExists(path)) return true;
        if (HasDrive(cell)) return false;
        const String program = ProgramFolder();
        for (const String& folder :
             {baseDir_, settings_.ProjectFolder, JoinPath(program, u"include"), program}) {
            if (folder.empty()) continue;
            path = NormalizePath(JoinPath(folder, own));
            if (FileExists(path)) return true;
        }
        return false;
    }

    ScriptPreprocessor& settings_;
    StringView text_;
    String baseDir_;
    std::size_t depth_;
    String output_;
    Long pos_ = 1;
    Long copied_ = 1;
    Long line_ = 1;
    /// The line that the output ends on.
    Long outputLine_ = 1;
    /// What NextBracket found last.
    Long bracket_ = 0;
    Long result_ = 0;
    bool inComment_ = false;
};

Long ScriptPreprocessor::PreprocessScript(String& script, StringView baseDir) {
    chain_.clear();
    expandedSize_ = 0;
    isExceeded_ = false;
    included_.clear();
    if (script.empty()) return 0;
    ScriptExpansion expansion(*this, script, baseDir, 0);
    const Long result = expansion.Run();
    if (result == 0) script = expansion.TakeOutput();
    return result;
}

Long ScriptPreprocessor::OuterLine(Long line) const {
    const auto behind = std::upper_bound(
        included_.begin(), included_.end(), line,
        [](Long wanted, const IncludedLines& included) { return wanted < included.First; });
    if (behind == included_.begin()) return line;
    const IncludedLines& included = *(behind - 1);
    return line <= included.Last ? included.Directive : included.Behind + line - included.Last;
}

}  // namespace tamber

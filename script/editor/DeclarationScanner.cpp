#include "script/editor/DeclarationScanner.h"

#include <algorithm>

#include "script/ScriptScanner.h"
#include "script/editor/ScriptTokenizer.h"

namespace tamber {

namespace {

bool IsDigit(char16_t c) {
    return c >= u'0' && c <= u'9';
}

/// Blanks in place of comments and of what stands in strings.
String CodeOf(StringView piece, ScriptState state, ScriptState& next) {
    static const KeywordSets noKeywords;
    std::vector<ScriptSpan> spans;
    next = ScriptTokenizer(noKeywords).Walk(piece, state, &spans);
    String code(piece);
    for (const ScriptSpan& span : spans) {
        const auto color = static_cast<ScriptColor>(span.Color);
        if (color == ScriptColor::Number) continue;
        std::fill_n(code.begin() + static_cast<std::ptrdiff_t>(span.Start), span.Length,
                    color == ScriptColor::Quoted ? u'"' : u' ');
    }
    return code;
}

class Scanner {
public:
    explicit Scanner(StringView code) : code_(code) {}

    std::vector<ScriptName> Run() {
        while (SkipToName()) TakeName();
        return std::move(names_);
    }

private:
    bool SkipToName() {
        while (at_ < code_.size() && !IsNameStart(code_[at_])) {
            // A number may have letters.
            if (IsDigit(code_[at_]))
                while (at_ < code_.size() && IsNamePart(code_[at_])) ++at_;
            else
                ++at_;
        }
        return at_ < code_.size();
    }
    StringView TakeWord() {
        const std::size_t start = at_;
        while (at_ < code_.size() && IsNamePart(code_[at_])) ++at_;
        return code_.substr(start, at_ - start);
    }
    /// Names with dots between them.
    StringView TakePath() {
        const std::size_t start = at_;
        while (at_ < code_.size() && (IsNamePart(code_[at_]) || code_[at_] == u'.')) ++at_;
        return code_.substr(start, at_ - start);
    }
    std::size_t SkipBlanks(std::size_t at) const {
        while (at < code_.size() && ScriptScanner::IsBlank(code_[at])) ++at;
        return at;
    }
    /// Steps over a character behind blanks. False, and nothing is, when another one stands there.
    bool Take(char16_t wanted) {
        const std::size_t at = SkipBlanks(at_);
        if (at >= code_.size() || code_[at] != wanted) return false;
        at_ = at + 1;
        return true;
    }
    bool TakeWord(StringView wanted) {
        const std::size_t at = SkipBlanks(at_);
        if (!code_.substr(at).starts_with(wanted)) return false;
        const std::size_t end = at + wanted.size();
        if (end < code_.size() && IsNamePart(code_[end])) return false;
        at_ = end;
        return true;
    }
    String TakeType() {
        if (!Take(u':')) return {};
        at_ = SkipBlanks(at_);
        return String(TakePath());
    }

    void TakeName() {
        const bool member = at_ > 0 && code_[at_ - 1] == u'.';
        const StringView word = TakeWord();
        if (word == u"var" || word == u"const") return TakeVariable();
        if (word == u"function") return TakeFunction({});
        ScriptName name{String(word), {}, {}, false, member};
        const std::size_t behind = at_;
        const bool assigned = TakeAssignment();
        if (assigned && TakeWord(u"function")) return TakeFunction(std::move(name));
        if (assigned && TakeWord(u"new")) {
            at_ = SkipBlanks(at_);
            name.Type = TakePath();
        } else {
            at_ = behind;
        }
        names_.push_back(std::move(name));
    }
    bool TakeAssignment() {
        if (Take(u':')) return true;
        const std::size_t at = SkipBlanks(at_);
        return !code_.substr(at).starts_with(u"==") && Take(u'=');
    }
    void TakeVariable() {
        at_ = SkipBlanks(at_);
        if (at_ >= code_.size() || !IsNameStart(code_[at_])) return;
        ScriptName name{String(TakePath())};
        name.Type = TakeType();
        const std::size_t behind = at_;
        if (Take(u'=')) {
            if (TakeWord(u"function")) return TakeFunction(std::move(name));
            if (TakeWord(u"new") && name.Type.empty()) {
                at_ = SkipBlanks(at_);
                name.Type = TakePath();
            } else {
                at_ = behind;
            }
        }
        names_.push_back(std::move(name));
    }
    /// Behind "function": a name, unless one is given, and what stands between brackets.
    void TakeFunction(ScriptName name) {
        at_ = SkipBlanks(at_);
        if (at_ < code_.size() && IsNameStart(code_[at_])) {
            StringView path = TakePath();
            if (path == u"get" || path == u"set") {
                at_ = SkipBlanks(at_);
                path = TakePath();
            }
            if (name.Name.empty()) name.Name = path;
        }
        name.blFunction = true;
        const std::size_t open = SkipBlanks(at_);
        if (Take(u'(')) {
            TakeArguments();
            if (Take(u')')) name.Arguments = code_.substr(open, at_ - open);
            name.Type = TakeType();
        }
        if (!name.Name.empty()) names_.push_back(std::move(name));
    }
    void TakeArguments() {
        do {
            at_ = SkipBlanks(at_);
            if (at_ >= code_.size() || !IsNameStart(code_[at_])) return;
            ScriptName argument{String(TakeWord())};
            argument.Type = TakeType();
            names_.push_back(std::move(argument));
        } while (Take(u','));
    }

    StringView code_;
    std::size_t at_ = 0;
    std::vector<ScriptName> names_;
};

}  // namespace

bool IsNameStart(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_' || c == u'$' ||
           (c > 0x7F && c != u'\u3000');
}

bool IsNamePart(char16_t c) {
    return IsNameStart(c) || IsDigit(c);
}

std::vector<ScriptName> ScanNames(StringView piece, ScriptState state, ScriptState& next) {
    const String code = CodeOf(piece, state, next);
    return Scanner(code).Run();
}

}  // namespace tamber

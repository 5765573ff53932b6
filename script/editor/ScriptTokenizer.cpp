#include "script/editor/ScriptTokenizer.h"

#include <algorithm>

#include "platform/text.h"
#include "script/ScriptScanner.h"

namespace tamber {

namespace {

constexpr Byte ColorOf(ScriptColor color) {
    return static_cast<Byte>(color);
}

bool IsLineEnd(char16_t c) {
    return c == u'\r' || c == u'\n';
}

bool IsQuote(char16_t c) {
    return c == u'"' || c == u'\'';
}

bool IsHex(StringView text) {
    return !text.empty() && text.find_first_not_of(u"0123456789abcdefABCDEF") == StringView::npos;
}

bool IsNumber(StringView word) {
    if (word.front() == u'#') return IsHex(word.substr(1));
    if (StartsWithNoCase(word, u"0x")) return IsHex(word.substr(2));
    return IsNumeric(word);
}

bool EndsWord(char16_t c) {
    return ScriptScanner::IsBlank(c) || ScriptScanner::IsPunctuation(c) || IsQuote(c) ||
           c == u'/' || c == u'*';
}

/// Walks the characters of a piece.
class PieceWalk {
public:
    PieceWalk(StringView piece, ScriptState state, std::vector<ScriptSpan>* spans)
        : piece_(piece), state_(state), spans_(spans) {}

    template <class TakeWord>
    ScriptState Run(TakeWord takeWord) {
        while (at_ < piece_.size()) {
            switch (state_) {
                case ScriptState::Code:
                    WalkCode(takeWord);
                    break;
                case ScriptState::LineComment:
                    WalkLineComment();
                    break;
                case ScriptState::BlockComment:
                    WalkBlockComment();
                    break;
                default:
                    WalkString();
            }
        }
        return state_;
    }

private:
    bool IsAt(StringView token) const { return piece_.substr(at_).starts_with(token); }
    void Begin(ScriptState state, std::size_t length) {
        from_ = at_;
        at_ += length;
        state_ = state;
    }
    void End(ScriptColor color) {
        if (spans_ != nullptr && at_ > from_)
            spans_->push_back({from_, at_ - from_, ColorOf(color)});
        from_ = at_;
    }

    template <class TakeWord>
    void WalkCode(TakeWord takeWord) {
        const char16_t c = piece_[at_];
        if (IsQuote(c)) {
            Begin(c == u'"' ? ScriptState::DoubleString : ScriptState::SingleString, 1);
            // A string may end with the piece.
            if (at_ == piece_.size()) End(ScriptColor::Quoted);
        } else if (IsAt(u"//")) {
            Begin(ScriptState::LineComment, 0);
        } else if (IsAt(u"/*")) {
            Begin(ScriptState::BlockComment, 2);
            if (at_ == piece_.size()) End(ScriptColor::Comment);
        } else if (EndsWord(c)) {
            ++at_;
        } else {
            const std::size_t start = at_;
            while (at_ < piece_.size() && !EndsWord(piece_[at_])) ++at_;
            takeWord(start, piece_.substr(start, at_ - start));
            from_ = at_;
        }
    }
    void WalkLineComment() {
        while (at_ < piece_.size() && !IsLineEnd(piece_[at_])) ++at_;
        End(ScriptColor::Comment);
        if (at_ < piece_.size()) state_ = ScriptState::Code;
    }
    void WalkBlockComment() {
        const std::size_t close = piece_.find(u"*/", at_);
        at_ = close == StringView::npos ? piece_.size() : close + 2;
        End(ScriptColor::Comment);
        if (close != StringView::npos) state_ = ScriptState::Code;
    }
    void WalkString() {
        const char16_t quote = state_ == ScriptState::DoubleString ? u'"' : u'\'';
        while (at_ < piece_.size() && piece_[at_] != quote)
            at_ = std::min(at_ + (piece_[at_] == u'\\' ? 2 : 1), piece_.size());
        if (at_ < piece_.size()) {
            ++at_;
            state_ = ScriptState::Code;
        }
        End(ScriptColor::Quoted);
    }

    StringView piece_;
    ScriptState state_;
    std::vector<ScriptSpan>* spans_;
    std::size_t at_ = 0;
    std::size_t from_ = 0;
};

}  // namespace

ScriptState ScriptTokenizer::Walk(StringView piece, ScriptState state,
                                  std::vector<ScriptSpan>* spans) const {
    return PieceWalk(piece, state, spans).Run([&](std::size_t start, StringView word) {
        if (spans == nullptr) return;
        if (auto span = SpanOf(word)) {
            span->Start = start;
            spans->push_back(*span);
        }
    });
}

std::optional<ScriptSpan> ScriptTokenizer::SpanOf(StringView word) const {
    if (const auto hit = keywords_.Find(word)) {
        const auto color = ColorOf(ScriptColor::FirstKeyword) + hit->Set;
        return ScriptSpan{0, word.size(), static_cast<Byte>(color), hit->Spelling};
    }
    if (IsNumber(word)) return ScriptSpan{0, word.size(), ColorOf(ScriptColor::Number)};
    return std::nullopt;
}

bool blIncludeFirst(StringView script) {
    const Long start = ScriptScanner::SkipToToken(script, 1);
    const StringView rest = script.substr(std::min<std::size_t>(start - 1, script.size()));
    const auto end = std::find_if(rest.begin(), rest.end(), EndsWord);
    const StringView word(rest.begin(), end);
    return EqualsNoCase(word, u"#include") || EqualsNoCase(word, u"#file");
}

}  // namespace tamber

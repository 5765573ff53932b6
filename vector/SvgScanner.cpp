#include "vector/SvgScanner.h"

#include <algorithm>

namespace tamber {

namespace {

/// True for what ends a tag: ">", "/>" or "?>", or a "<" that begins another one.
bool IsTagEnd(std::string_view text, std::size_t at) {
    const char c = text[at];
    if (c == '>' || c == '<') return true;
    return (c == '/' || c == '?') && at + 1 < text.size() && text[at + 1] == '>';
}

}  // namespace

std::string_view TrimSvgSpace(std::string_view text) {
    while (!text.empty() && IsSvgSpace(text.front())) text.remove_prefix(1);
    while (!text.empty() && IsSvgSpace(text.back())) text.remove_suffix(1);
    return text;
}

std::size_t FindSvgChar(std::string_view text, char c, std::size_t from) {
    return std::min(text.find(c, from), text.size());
}

void SvgScanner::SkipSpace() {
    while (!AtEnd() && IsSvgSpace(text_[position_])) ++position_;
}

void SvgScanner::PassText(std::string_view mark, std::size_t from) {
    const std::size_t found = text_.find(mark, std::min(from, text_.size()));
    position_ = found == std::string_view::npos ? text_.size() : found + mark.size();
}

/// Moves behind markup that is no element, from its "<".
bool SvgScanner::PassMarkup() {
    const std::string_view rest = text_.substr(position_);
    if (rest.size() < 2 || (rest[1] != '!' && rest[1] != '?')) return false;
    if (rest.starts_with("<!--"))
        PassText("-->", position_ + 4);
    else if (rest.starts_with("<![CDATA["))
        PassText("]]>", position_ + 9);
    else
        PassText(rest[1] == '?' ? "?>" : ">", position_ + 2);
    return true;
}

std::string_view SvgScanner::NextTag() {
    while (true) {
        position_ = FindSvgChar(text_, '<', position_);
        if (AtEnd()) return {};
        if (PassMarkup()) continue;
        tagStart_ = position_;
        const std::size_t start = ++position_;
        while (!AtEnd()) {
            const char c = text_[position_];
            if (IsSvgSpace(c) || c == '>' || c == '<' || (c == '/' && position_ != start)) break;
            ++position_;
        }
        if (position_ != start) return text_.substr(start, position_ - start);
    }
}

std::string_view SvgScanner::ReadName() {
    const std::size_t start = position_;
    while (!AtEnd()) {
        const char c = text_[position_];
        if (IsSvgSpace(c) || c == '=' || IsTagEnd(text_, position_)) break;
        ++position_;
    }
    return text_.substr(start, position_ - start);
}

/// False when none stands between double quotes behind the name.
bool SvgScanner::ReadValue(SvgAttribute& attribute) {
    SkipSpace();
    if (AtEnd() || text_[position_] != '=') return false;
    ++position_;
    SkipSpace();
    const char quote = AtEnd() ? '\0' : text_[position_];
    if (quote != '"' && quote != '\'') return false;
    const std::size_t start = position_ + 1;
    const std::size_t end = FindSvgChar(text_, quote, start);
    position_ = std::min(end + 1, text_.size());
    if (end == text_.size()) return false;
    attribute.Value = text_.substr(start, end - start);
    if (quote == '\'') leftOut_.Note(SvgFeature::SingleQuote);
    return quote == '"';
}

bool SvgScanner::NextAttribute(SvgAttribute& attribute) {
    do {
        SkipSpace();
        if (AtEnd() || IsTagEnd(text_, position_)) return false;
        attribute = {ReadName(), {}};
    } while (!ReadValue(attribute));
    return true;
}

bool SvgScanner::PassTagEnd() {
    while (!AtEnd()) {
        const char c = text_[position_];
        if (c == '<') return false;
        ++position_;
        if (c == '>') return position_ >= 2 && text_[position_ - 2] == '/';
        if (c == '"' || c == '\'')
            position_ = std::min(FindSvgChar(text_, c, position_) + 1, text_.size());
    }
    return false;
}

void SvgScanner::SkipElement() {
    if (PassTagEnd()) return;
    for (std::size_t depth = 1; depth > 0;) {
        const std::string_view name = NextTag();
        if (name.empty()) return;
        const bool closing = name.front() == '/';
        const bool closed = PassTagEnd();
        if (closing)
            --depth;
        else if (!closed)
            ++depth;
    }
}

}  // namespace tamber

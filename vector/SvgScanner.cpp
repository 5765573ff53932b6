#include "vector/SvgScanner.h"

#include <algorithm>
#include <cstring>

namespace tamber {

namespace {

/// True for what ends a tag: ">", "/>" or "?>", or a "<" that begins another one.
bool IsTagEnd(StringView text, std::size_t at) {
    const char16_t c = text[at];
    if (c == u'>' || c == u'<') return true;
    return (c == u'/' || c == u'?') && at + 1 < text.size() && text[at + 1] == u'>';
}

}  // namespace

StringView TrimSvgSpace(StringView text) {
    while (!text.empty() && IsSvgSpace(text.front())) text.remove_prefix(1);
    while (!text.empty() && IsSvgSpace(text.back())) text.remove_suffix(1);
    return text;
}

std::size_t FindSvgChar(StringView text, char16_t c, std::size_t from) {
    // Looks for the byte, which the C library does many at a time, then at the character it is in.
    while (from < text.size()) {
        const auto* start = reinterpret_cast<const char*>(text.data() + from);
        const void* hit = std::memchr(start, c, (text.size() - from) * sizeof(char16_t));
        if (hit == nullptr) break;
        const auto offset = static_cast<std::size_t>(static_cast<const char*>(hit) - start);
        from += offset / sizeof(char16_t);
        if (text[from] == c) return from;
        ++from;
    }
    return text.size();
}

void SvgScanner::SkipSpace() {
    while (!AtEnd() && IsSvgSpace(text_[position_])) ++position_;
}

void SvgScanner::PassText(StringView mark, std::size_t from) {
    const std::size_t found = text_.find(mark, std::min(from, text_.size()));
    position_ = found == StringView::npos ? text_.size() : found + mark.size();
}

/// Moves behind markup that is no element, from its "<".
bool SvgScanner::PassMarkup() {
    const StringView rest = text_.substr(position_);
    if (rest.size() < 2 || (rest[1] != u'!' && rest[1] != u'?')) return false;
    if (rest.starts_with(u"<!--"))
        PassText(u"-->", position_ + 4);
    else if (rest.starts_with(u"<![CDATA["))
        PassText(u"]]>", position_ + 9);
    else
        PassText(rest[1] == u'?' ? u"?>" : u">", position_ + 2);
    return true;
}

StringView SvgScanner::NextTag() {
    while (true) {
        position_ = FindSvgChar(text_, u'<', position_);
        if (AtEnd()) return {};
        if (PassMarkup()) continue;
        tagStart_ = position_;
        const std::size_t start = ++position_;
        while (!AtEnd()) {
            const char16_t c = text_[position_];
            if (IsSvgSpace(c) || c == u'>' || c == u'<' || (c == u'/' && position_ != start)) break;
            ++position_;
        }
        if (position_ != start) return text_.substr(start, position_ - start);
    }
}

StringView SvgScanner::ReadName() {
    const std::size_t start = position_;
    while (!AtEnd()) {
        const char16_t c = text_[position_];
        if (IsSvgSpace(c) || c == u'=' || IsTagEnd(text_, position_)) break;
        ++position_;
    }
    return text_.substr(start, position_ - start);
}

void SvgScanner::ReadValue(SvgAttribute& attribute) {
    const char16_t quote = AtEnd() ? u'\0' : text_[position_];
    if (quote != u'"' && quote != u'\'') return;
    const std::size_t start = position_ + 1;
    const std::size_t end = FindSvgChar(text_, quote, start);
    position_ = std::min(end + 1, text_.size());
    if (end == text_.size()) return;
    if (quote == u'"')
        attribute.Value = text_.substr(start, end - start);
    else
        leftOut_.Note(SvgFeature::SingleQuote);
}

bool SvgScanner::NextAttribute(SvgAttribute& attribute) {
    SkipSpace();
    if (AtEnd() || IsTagEnd(text_, position_)) return false;
    attribute = {ReadName(), {}};
    SkipSpace();
    if (AtEnd() || text_[position_] != u'=') return true;
    ++position_;
    SkipSpace();
    ReadValue(attribute);
    return true;
}

bool SvgScanner::PassTagEnd() {
    while (!AtEnd()) {
        const char16_t c = text_[position_];
        if (c == u'<') return false;
        ++position_;
        if (c == u'>') return position_ >= 2 && text_[position_ - 2] == u'/';
        if (c == u'"' || c == u'\'')
            position_ = std::min(FindSvgChar(text_, c, position_) + 1, text_.size());
    }
    return false;
}

void SvgScanner::SkipElement() {
    if (PassTagEnd()) return;
    for (std::size_t depth = 1; depth > 0;) {
        const StringView name = NextTag();
        if (name.empty()) return;
        const bool closing = name.front() == u'/';
        const bool closed = PassTagEnd();
        if (closing)
            --depth;
        else if (!closed)
            ++depth;
    }
}

}  // namespace tamber

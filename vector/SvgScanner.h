#pragma once

#include "vector/SvgLeftOut.h"

namespace tamber {

/// Space, ideographic space, tab, carriage return and line feed.
constexpr bool IsSvgSpace(char16_t c) {
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n' || c == u'\u3000';
}
StringView TrimSvgSpace(StringView text);

/// Place of a character below U+0100 from `from` on, or the text's length.
std::size_t FindSvgChar(StringView text, char16_t c, std::size_t from);

struct SvgAttribute {
    StringView Name;
    StringView Value;
};

/// Walks the tags and attributes of a text, always forward. All it gives are views into the text.
class SvgScanner {
public:
    SvgScanner(StringView text, std::size_t position, SvgLeftOut& leftOut)
        : text_(text), position_(position), leftOut_(leftOut) {}

    std::size_t Position() const { return position_; }
    /// Place of the "<" that the last tag began with.
    std::size_t TagStart() const { return tagStart_; }

    /// Name of the next tag, "/" in front of that of a closing one; the cursor stands behind it.
    /// Comments, declarations and character data are passed over. Empty when there is no more.
    StringView NextTag();
    /// Next attribute of the tag. False at the tag's end or at the next tag, before which the
    /// cursor then stands. The value is what stands between double quotes; one between single
    /// quotes is passed over.
    bool NextAttribute(SvgAttribute& attribute);
    /// Moves behind the ">" that ends the tag. True when a "/" stands before it.
    bool PassTagEnd();
    /// Moves behind the element whose tag was read last, with all it contains.
    void SkipElement();

private:
    bool AtEnd() const { return position_ >= text_.size(); }
    void SkipSpace();
    /// Moves behind the next `mark`, or to the end of the text.
    void PassText(StringView mark, std::size_t from);
    bool PassMarkup();
    StringView ReadName();
    void ReadValue(SvgAttribute& attribute);

    StringView text_;
    std::size_t position_;
    std::size_t tagStart_ = 0;
    SvgLeftOut& leftOut_;
};

}  // namespace tamber

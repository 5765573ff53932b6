#pragma once

#include "vector/SvgLeftOut.h"

namespace tamber {

/// Space, tab, carriage return and line feed. An ideographic space counts too, and is a plain one
/// in the decoded text.
constexpr bool IsSvgSpace(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}
std::string_view TrimSvgSpace(std::string_view text);

/// Place of a character from `from` on, or the text's length.
std::size_t FindSvgChar(std::string_view text, char c, std::size_t from);

struct SvgAttribute {
    std::string_view Name;
    std::string_view Value;
};

/// Walks the tags and attributes of a text, always forward. All it gives are views into the text.
class SvgScanner {
public:
    SvgScanner(std::string_view text, std::size_t position, SvgLeftOut& leftOut)
        : text_(text), position_(position), leftOut_(leftOut) {}

    std::size_t Position() const { return position_; }
    /// Place of the "<" that the last tag began with.
    std::size_t TagStart() const { return tagStart_; }

    /// Name of the next tag, "/" in front of that of a closing one; the cursor stands behind it.
    /// Comments, declarations and character data are passed over. Empty when there is no more.
    std::string_view NextTag();
    /// Next attribute of the tag. False at the tag's end or at the next tag, before which the
    /// cursor then stands. The value is what stands between double quotes; an attribute without
    /// one, or with one between single quotes, is passed over.
    bool NextAttribute(SvgAttribute& attribute);
    /// Moves behind the ">" that ends the tag. True when a "/" stands before it.
    bool PassTagEnd();
    /// Moves behind the element whose tag was read last, with all it contains.
    void SkipElement();

private:
    bool AtEnd() const { return position_ >= text_.size(); }
    void SkipSpace();
    /// Moves behind the next `mark`, or to the end of the text.
    void PassText(std::string_view mark, std::size_t from);
    bool PassMarkup();
    std::string_view ReadName();
    bool ReadValue(SvgAttribute& attribute);

    std::string_view text_;
    std::size_t position_;
    std::size_t tagStart_ = 0;
    SvgLeftOut& leftOut_;
};

}  // namespace tamber

#include "canvas/picture/TextFieldLayout.h"

#include <algorithm>

namespace tamber {

TextFieldLayout::TextFieldLayout(const std::vector<TextRun>& runs, const FieldMeasures& measures)
    : measures_(measures), penX_(measures.Indent) {
    for (const TextRun& run : runs) {
        lastRun_ = &run;
        for (const char16_t character : run.Text) Put(run, character);
    }
    if (lastRun_ != nullptr) EndLine(glyphs_.size());
}

void TextFieldLayout::Put(const TextRun& run, char16_t character) {
    if (character == u'\n' || character == u'\r') {
        if (measures_.blMultiLine) EndLine(glyphs_.size());
        return;
    }
    const double advance = run.Font->Find(character).Advance * run.Size;
    const bool isTooLong = penX_ + advance > measures_.Width && glyphs_.size() > lineStart_;
    if (measures_.blWordWrap && measures_.blMultiLine && isTooLong && character != u' ') Wrap();
    glyphs_.push_back({&run, character, penX_, 0, advance});
    penX_ += advance;
    if (character == u' ') breakAt_ = glyphs_.size();
}

void TextFieldLayout::Wrap() {
    const std::size_t end = breakAt_ > lineStart_ ? breakAt_ : glyphs_.size();
    EndLine(end);
    for (std::size_t i = end; i < glyphs_.size(); ++i) {
        glyphs_[i].X = penX_;
        penX_ += glyphs_[i].Advance;
    }
}

void TextFieldLayout::EndLine(std::size_t end) {
    double ascent = 0;
    double descent = 0;
    const auto grow = [&](const TextRun& run) {
        ascent = std::max(ascent, run.Font->Ascent() * run.Size);
        descent = std::max(descent, run.Font->Descent() * run.Size);
    };
    double right = 0;
    for (std::size_t i = lineStart_; i < end; ++i) {
        grow(*glyphs_[i].Run);
        if (glyphs_[i].Character != u' ') right = glyphs_[i].X + glyphs_[i].Advance;
    }
    if (end == lineStart_) grow(*lastRun_);
    const Long alignment = end > lineStart_ ? glyphs_[lineStart_].Run->Alignment : 0;
    const double room = measures_.Width - right;
    const double shift = alignment == 1 ? room : alignment == 2 ? room / 2 : 0;
    for (std::size_t i = lineStart_; i < end; ++i) {
        glyphs_[i].X += std::max(shift, 0.0);
        glyphs_[i].Y = height_ + ascent;
    }
    width_ = std::max(width_, right);
    height_ += ascent + descent + measures_.Leading;
    lineStart_ = end;
    breakAt_ = 0;
    penX_ = measures_.Indent;
}

}  // namespace tamber

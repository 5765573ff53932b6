#include "canvas/picture/EditTextCharacter.h"

#include "canvas/picture/DeviceFont.h"
#include "canvas/picture/HtmlText.h"
#include "canvas/picture/Painter.h"
#include "platform/twips.h"

namespace tamber {

namespace {

/// Between the box of a field and its text, twips.
constexpr double Gutter = 2 * TwipsPerPixel;

PicturePath Outline(const PaintBox& box) {
    return PicturePath::OfBox(box.Left, box.Top, box.Right, box.Bottom);
}

}  // namespace

const String& EditTextCharacter::TextIn(const PaintState& state) const {
    const auto given = state.Options->Texts.find(variableName_);
    return !variableName_.empty() && given != state.Options->Texts.end() ? given->second
                                                                         : initialText_;
}

std::vector<TextRun> EditTextCharacter::Runs(const String& text) const {
    TextRun plain;
    plain.Color = format_.Color;
    plain.Size = format_.Size;
    plain.Alignment = format_.Alignment;
    if (format_.blUseOutlines && format_.Font && format_.Font->HasGlyphs())
        plain.Font = format_.Font;
    else
        plain.Font = std::make_shared<DeviceFont>(
            format_.Font ? format_.Font->FontName() : String(), false, false);
    if (format_.blHtml) return HtmlRuns(text, plain);
    plain.Text = format_.blPassword ? String(text.size(), u'*') : text;
    return {plain};
}

FieldMeasures EditTextCharacter::Measures() const {
    FieldMeasures measures;
    measures.Width = format_.Bounds.Right - format_.Bounds.Left - 2 * Gutter - format_.LeftMargin -
                     format_.RightMargin;
    measures.Leading = format_.Leading;
    measures.Indent = format_.Indent;
    measures.blWordWrap = format_.blWordWrap;
    measures.blMultiLine = format_.blMultiLine;
    return measures;
}

PaintBox EditTextCharacter::BoxAround(const TextFieldLayout& layout) const {
    PaintBox box = format_.Bounds;
    if (!format_.blAutoSize) return box;
    box.Bottom = box.Top + layout.Height() + 2 * Gutter;
    if (!format_.blWordWrap) box.Right = box.Left + layout.Width() + 2 * Gutter;
    return box;
}

PaintBox EditTextCharacter::Bounds(const PaintState& state) const {
    PaintBox box = format_.Bounds;
    if (format_.blAutoSize) {
        const std::vector<TextRun> runs = Runs(TextIn(state));
        const FieldMeasures measures = Measures();
        box = BoxAround(TextFieldLayout(runs, measures));
    }
    PaintBox drawn = box.Under(state.Matrix);
    drawn.Grow(1);
    return drawn;
}

void EditTextCharacter::DrawBorder(const PaintBox& box, Painter& painter,
                                   const PaintState& state) const {
    const PicturePath outline = Outline(box);
    PictureFill white;
    white.Color = {255, 255, 255, 255};
    painter.Fill(outline, white, state, CAIRO_FILL_RULE_EVEN_ODD);
    painter.DrawBox(box, state);
}

void EditTextCharacter::Draw(Painter& painter, const PaintState& state) const {
    const std::vector<TextRun> runs = Runs(TextIn(state));
    const FieldMeasures measures = Measures();
    const TextFieldLayout layout(runs, measures);
    const PaintBox box = BoxAround(layout);
    if (format_.blBorder) DrawBorder(box, painter, state);
    const Painter::Clipping clipping(painter, Outline(box), state);
    PaintState drawn = state;
    PictureFill fill;
    for (const TextFieldLayout::PlacedGlyph& placed : layout.Glyphs()) {
        const GlyphSource& font = *placed.Run->Font;
        const GlyphSource::Glyph glyph = font.Find(placed.Character);
        if (glyph.Outline == nullptr) continue;
        const double scale = placed.Run->Size / font.Unit();
        const cairo_matrix_t place{scale,
                                   0,
                                   0,
                                   scale,
                                   box.Left + Gutter + format_.LeftMargin + placed.X,
                                   box.Top + Gutter + placed.Y};
        cairo_matrix_multiply(&drawn.Matrix, &place, &state.Matrix);
        fill.Color = placed.Run->Color;
        painter.Fill(*glyph.Outline, fill, drawn, CAIRO_FILL_RULE_EVEN_ODD);
    }
}

}  // namespace tamber

#include "canvas/picture/TextCharacter.h"

#include "canvas/picture/Painter.h"

namespace tamber {

void TextCharacter::Draw(Painter& painter, const PaintState& state) const {
    PaintState drawn = state;
    cairo_matrix_t text;
    cairo_matrix_multiply(&text, &matrix_, &state.Matrix);
    PictureFill fill;
    for (const PlacedGlyph& glyph : glyphs_) {
        const double scale = glyph.Size / glyph.Font->Unit();
        const cairo_matrix_t place{scale, 0, 0, scale, glyph.X, glyph.Y};
        cairo_matrix_multiply(&drawn.Matrix, &place, &text);
        fill.Color = glyph.Color;
        painter.Fill(glyph.Font->Outline(glyph.Number), fill, drawn, CAIRO_FILL_RULE_EVEN_ODD);
    }
}

/// The box of the tag is that of the text as it was set, beyond which outlines may reach a little.
PaintBox TextCharacter::Bounds(const PaintState& state) const {
    PaintBox box = bounds_;
    cairo_matrix_t text;
    cairo_matrix_multiply(&text, &matrix_, &state.Matrix);
    double largest = 0;
    for (const PlacedGlyph& glyph : glyphs_) largest = std::max(largest, glyph.Size);
    box.Grow(largest / 2);
    PaintBox drawn = box.Under(state.Matrix);
    for (const PlacedGlyph& glyph : glyphs_)
        drawn.Add(
            PaintBox{glyph.X, glyph.Y - glyph.Size, glyph.X + glyph.Size, glyph.Y + glyph.Size}
                .Under(text));
    return drawn;
}

}  // namespace tamber

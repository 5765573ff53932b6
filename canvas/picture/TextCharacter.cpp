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

PaintBox TextCharacter::BoxOfGlyphs() const {
    PaintBox box;
    for (const PlacedGlyph& glyph : glyphs_) {
        const double scale = glyph.Size / glyph.Font->Unit();
        PaintBox reach;
        if (!glyph.Font->Outline(glyph.Number)
                 .Reach(reach.Left, reach.Top, reach.Right, reach.Bottom))
            continue;
        box.Add(reach.Under({scale, 0, 0, scale, glyph.X, glyph.Y}));
    }
    return box;
}

PaintBox TextCharacter::Bounds(const PaintState& state) const {
    if (!box_) box_ = BoxOfGlyphs();
    cairo_matrix_t text;
    cairo_matrix_multiply(&text, &matrix_, &state.Matrix);
    PaintBox drawn = box_->Under(text);
    drawn.Grow(1);
    return drawn;
}

}  // namespace tamber

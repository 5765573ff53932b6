#pragma once

#include <vector>

#include "canvas/picture/FontCharacter.h"
#include "canvas/picture/PictureFill.h"

namespace tamber {

/// A static text: glyphs at their places.
class TextCharacter : public Character {
public:
    struct PlacedGlyph {
        std::shared_ptr<const FontCharacter> Font;
        std::size_t Number = 0;
        PictureColor Color;
        /// Base line's beginning, and the font's size; twips.
        double X = 0;
        double Y = 0;
        double Size = 0;
    };

    TextCharacter(cairo_matrix_t matrix, std::vector<PlacedGlyph> glyphs)
        : matrix_(matrix), glyphs_(std::move(glyphs)) {}

    void Draw(Painter& painter, const PaintState& state) const override;
    PaintBox Bounds(const PaintState& state) const override;

private:
    PaintBox BoxOfGlyphs() const;

    cairo_matrix_t matrix_;
    std::vector<PlacedGlyph> glyphs_;
    /// Around the glyphs, once it was asked for.
    mutable std::optional<PaintBox> box_;
};

}  // namespace tamber

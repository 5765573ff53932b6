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

    TextCharacter(PaintBox bounds, cairo_matrix_t matrix, std::vector<PlacedGlyph> glyphs)
        : bounds_(bounds), matrix_(matrix), glyphs_(std::move(glyphs)) {}

    void Draw(Painter& painter, const PaintState& state) const override;
    PaintBox Bounds(const PaintState& state) const override;

private:
    PaintBox bounds_;
    cairo_matrix_t matrix_;
    std::vector<PlacedGlyph> glyphs_;
};

}  // namespace tamber

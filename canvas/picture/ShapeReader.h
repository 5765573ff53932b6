#pragma once

#include <functional>

#include "canvas/picture/MovieValues.h"
#include "canvas/picture/ShapeCharacter.h"
#include "swf/SwfBits.h"

namespace tamber {

/// Finds a picture by its identifier; null where there is none.
using FindBitmap = std::function<std::shared_ptr<const BitmapCharacter>(Long id)>;

/// Reads DefineShape to DefineShape4 and the two morph shapes, from behind the identifier, and the
/// shapes of glyphs. Damage raises a RuntimeError; what was read before it is lost.
class ShapeReader {
public:
    /// `tag`: the code of the tag that holds the shape.
    ShapeReader(SwfBits bits, Long tag, FindBitmap findBitmap)
        : bits_(bits), tag_(tag), findBitmap_(std::move(findBitmap)) {}

    std::shared_ptr<ShapeCharacter> ReadShape();
    std::shared_ptr<MorphCharacter> ReadMorph();
    /// A shape without styles, as fonts have them: style 1 is the glyph.
    PicturePath ReadGlyph();

private:
    Long UI(Long byteCount) { return static_cast<Long>(bits_.GetUI(byteCount)); }
    Long Bits(Long bitCount) { return static_cast<Long>(bits_.GetBits(bitCount)); }
    bool IsMorph() const;
    bool HasAlpha() const;
    Long ReadCount(bool isFill);
    PictureColor ReadColor() { return tamber::ReadColor(bits_, HasAlpha()); }
    cairo_matrix_t ReadMatrix() { return ToCairo(bits_.GetMatrix()); }

    void ReadStyles(ShapeLayer& layer, ShapeLayer* end);
    void ReadFill(PictureFill& fill, PictureFill* end);
    void ReadGradient(Long type, PictureFill& fill, PictureFill* end);
    void ReadBitmap(Long type, PictureFill& fill, PictureFill* end);
    void ReadLine(PictureLine& line, PictureLine* end);
    void ReadLineOptions(PictureLine& line, bool& hasFill);
    /// Edges up to the end mark. New styles begin a layer, where a tag may have them.
    void ReadRecords(std::vector<ShapeLayer>& layers);
    bool ReadStyleChange(Long flags, std::vector<ShapeLayer>& layers);
    OutlineStep ReadEdge(Long flags);
    void ReadIndexWidths();

    SwfBits bits_;
    Long tag_;
    FindBitmap findBitmap_;
    Long fillBits_ = 0;
    Long lineBits_ = 0;
    /// Edges that may still come; drawings have some ten thousand.
    Long budget_ = 1 << 18;
    /// Where the pen stands, and between what it draws.
    SwfPoint pen_;
    OutlineStep styles_;
};

}  // namespace tamber

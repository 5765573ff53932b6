#pragma once

#include <map>
#include <optional>
#include <vector>

#include "canvas/picture/Character.h"
#include "canvas/picture/GlyphSource.h"
#include "swf/SwfBits.h"

namespace tamber {

/// A font of the movie: DefineFont, DefineFont2 or DefineFont3. Its outlines are read when they are
/// first drawn.
class FontCharacter : public Character, public GlyphSource {
public:
    /// Reads from behind the identifier. Damage raises a RuntimeError.
    FontCharacter(Long tag, ByteView body, Long version);

    /// The outline of a glyph by its number, from 0; empty where there is none, or a damaged one.
    const PicturePath& Outline(std::size_t glyph) const;
    bool HasGlyphs() const { return !shapes_.empty(); }
    const String& FontName() const { return name_; }

    Glyph Find(char16_t character) const override;
    double Ascent() const override { return ascent_; }
    double Descent() const override { return descent_; }
    double Unit() const override { return unit_; }
    /// A font is not seen by itself.
    void Draw(Painter&, const PaintState&) const override {}
    PaintBox Bounds(const PaintState&) const override { return {}; }

private:
    void ReadShapeTable(SwfBits bits);
    void ReadFont2(SwfBits bits, Long version);
    void ReadCodes(SwfBits& bits, std::size_t count, bool isWide, Long version);
    void ReadLayout(SwfBits& bits, std::size_t count);

    Long tag_;
    Bytes body_;
    double unit_ = 1024;
    String name_;
    /// Where the shape of each glyph lies in the body.
    std::vector<ByteView> shapes_;
    std::map<char16_t, std::size_t> glyphs_;
    std::vector<double> advances_;
    double ascent_ = 0;
    double descent_ = 1;
    mutable std::vector<std::optional<PicturePath>> outlines_;
};

}  // namespace tamber

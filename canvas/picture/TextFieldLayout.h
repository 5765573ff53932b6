#pragma once

#include <vector>

#include "canvas/picture/GlyphSource.h"
#include "canvas/picture/PictureFill.h"

namespace tamber {

/// A piece of a text with one look.
struct TextRun {
    String Text;
    PictureColor Color;
    /// Twips.
    double Size = 240;
    std::shared_ptr<const GlyphSource> Font;
    /// 0 left, 1 right, 2 centre.
    Long Alignment = 0;
};

/// How the lines of a field are set, twips.
struct FieldMeasures {
    /// Of a line, margins taken off; lines are broken there with `blWordWrap`.
    double Width = 0;
    double Leading = 0;
    double Indent = 0;
    bool blWordWrap = false;
    bool blMultiLine = false;
};

/// The glyphs of a text field where they stand.
class TextFieldLayout {
public:
    struct PlacedGlyph {
        const TextRun* Run = nullptr;
        char16_t Character = 0;
        double X = 0;
        /// Base line.
        double Y = 0;
        double Advance = 0;
    };

    /// The runs must outlive the layout. LF and CR end a line.
    TextFieldLayout(const std::vector<TextRun>& runs, const FieldMeasures& measures);

    const std::vector<PlacedGlyph>& Glyphs() const { return glyphs_; }
    /// Of the widest line, and of all lines.
    double Width() const { return width_; }
    double Height() const { return height_; }

private:
    void Put(const TextRun& run, char16_t character);
    /// The line is too long for one more character: what stands behind its last space, or all,
    /// goes on.
    void Wrap();
    void EndLine(std::size_t end);

    const FieldMeasures& measures_;
    std::vector<PlacedGlyph> glyphs_;
    /// The first glyph of the line at work, and the one behind its last space; 0 for none.
    std::size_t lineStart_ = 0;
    std::size_t breakAt_ = 0;
    double penX_ = 0;
    double width_ = 0;
    double height_ = 0;
    /// The run that a line without characters is as high as.
    const TextRun* lastRun_ = nullptr;
};

}  // namespace tamber

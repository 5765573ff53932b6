#pragma once

#include <memory>

#include "canvas/picture/PicturePath.h"
#include "platform/types.h"

namespace tamber {

/// A font that texts are drawn with. Lengths are parts of the font's size, so that 1 is the height
/// of its square; outlines grow downwards from the base line.
class GlyphSource {
public:
    struct Glyph {
        /// In units of which `Unit` make the font's square; null for nothing to see.
        const PicturePath* Outline = nullptr;
        double Advance = 0;
    };

    virtual ~GlyphSource() = default;

    /// A character's glyph; without advance and outline where the font lacks it. The outline stays
    /// until the next call.
    virtual Glyph Find(char16_t character) const = 0;
    /// From the top of a line to its base line, and from there to its bottom.
    virtual double Ascent() const = 0;
    virtual double Descent() const = 0;
    /// Units of an outline that make the font's square.
    virtual double Unit() const = 0;
};

}  // namespace tamber

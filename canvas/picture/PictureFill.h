#pragma once

#include <cairo.h>

#include <memory>
#include <vector>

#include "canvas/picture/PictureColor.h"

namespace tamber {

class BitmapCharacter;

struct GradientStop {
    /// Of 255.
    Byte Ratio = 0;
    PictureColor Color;
};

/// What the inside of an outline is painted with.
struct PictureFill {
    enum class Kind { Solid, Linear, Radial, Bitmap };

    Kind What = Kind::Solid;
    PictureColor Color;
    /// From the gradient's square (-16384 to 16384), or from the bitmap's pixels, to twips.
    cairo_matrix_t Matrix{1, 0, 0, 1, 0, 0};
    std::vector<GradientStop> Stops;
    cairo_extend_t Spread = CAIRO_EXTEND_PAD;
    /// Colours between the stops are mixed in linear light.
    bool blLinearLight = false;
    /// Where a radial gradient begins, -1 to 1 of its radius.
    double Focal = 0;
    /// Null where there is no such picture.
    std::shared_ptr<const BitmapCharacter> Bitmap;
    bool blSmooth = true;
};

/// The fill that stands between two of one kind, as the states of a morph shape have them; `ratio`
/// is 0 for the first and 1 for the second.
PictureFill Mix(const PictureFill& from, const PictureFill& to, double ratio);

/// What an outline is drawn with.
struct PictureLine {
    /// Twips.
    double Width = 0;
    cairo_line_cap_t Cap = CAIRO_LINE_CAP_ROUND;
    cairo_line_join_t Join = CAIRO_LINE_JOIN_ROUND;
    double MiterLimit = 3;
    /// The width stays when the line is scaled in that direction.
    bool blNoScaleX = false;
    bool blNoScaleY = false;
    /// A line that comes back to its beginning has two ends all the same.
    bool blNoClose = false;
    PictureFill Paint;
};

PictureLine Mix(const PictureLine& from, const PictureLine& to, double ratio);

}  // namespace tamber

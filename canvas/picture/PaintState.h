#pragma once

#include <map>

#include "canvas/picture/Character.h"
#include "swf/SwfTypes.h"

namespace tamber {

/// What holds for a whole picture.
struct PaintOptions {
    /// Pixels of the picture for a pixel of the stage; lengths of filters follow it.
    double Scale = 1;
    /// Sprites go on with the timeline; else they stand on their first frame.
    bool blAnimate = false;
    /// Texts of fields by the names of their variables.
    std::map<String, String> Texts{};
};

/// Where and how a character is drawn.
struct PaintState {
    /// Twips to pixels.
    cairo_matrix_t Matrix{1, 0, 0, 1, 0, 0};
    SwfColorTransform Colors{};
    /// Frames since the character came.
    Long Frame = 0;
    /// Of a morph shape.
    Long Ratio = 0;
    /// Only what is covered counts; all is painted opaque.
    bool blMask = false;
    const PaintOptions* Options = nullptr;
};

}  // namespace tamber

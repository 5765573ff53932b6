#pragma once

#include <chrono>
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
    /// Lines are drawn with coarser edges, in half of the time, and small pictures from smaller
    /// copies of themselves.
    bool blQuick = false;
    /// Texts of fields by the names of their variables.
    std::map<String, String> Texts{};
    /// When a picture that is still not done is given up.
    std::chrono::steady_clock::time_point Deadline = std::chrono::steady_clock::time_point::max();
};

/// Thrown out of the drawing of a picture that takes too long.
struct PictureGivenUp {};

/// Where and how a character is drawn.
struct PaintState {
    /// Twips to pixels.
    cairo_matrix_t Matrix{1, 0, 0, 1, 0, 0};
    SwfColorTransform Colors{};
    /// Frames since the character came.
    Long Frame = 0;
    /// How much the placement itself stretches the character.
    double OwnScaleX = 1;
    double OwnScaleY = 1;
    /// Of a morph shape.
    Long Ratio = 0;
    /// That of the placement; null for none.
    const String* Name = nullptr;
    /// Only what is covered counts; all is painted opaque.
    bool blMask = false;
    const PaintOptions* Options = nullptr;
};

}  // namespace tamber

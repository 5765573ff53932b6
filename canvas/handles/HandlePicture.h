#pragma once

#include <array>
#include <vector>

#include "canvas/handles/TweenLine.h"
#include "platform/types.h"

namespace tamber {

/// What is to be drawn of the handles over the canvas; places in its pixels.
struct HandlePicture {
    struct Mark {
        Long Handle = 0;
        CanvasPoint Place;
    };
    struct TweenMark {
        CanvasPoint Place;
        bool blControl = false;
        bool blInUse = false;
        /// Empty for control points.
        String Label{};
    };

    /// Top left, top right, bottom right, bottom left.
    std::array<CanvasPoint, 4> Frame{};
    std::vector<Mark> Squares{};
    CanvasPoint Offset{};
    CanvasPoint Rotation{};
    /// Where the stalk of the rotation handle begins.
    CanvasPoint RotationFoot{};
    /// Tween lines, that of the element first.
    std::vector<std::vector<TweenCurve>> TweenLines{};
    std::vector<TweenMark> TweenPoints{};
};

}  // namespace tamber

#pragma once

#include <array>
#include <optional>

#include "platform/types.h"

namespace tamber {

/// Edits the four guides of a nine-slice grid over the symbol.
class ScalingGridEditor {
public:
    enum Guide { XMin, XMax, YMin, YMax };

    /// Size of the symbol in pixels.
    ScalingGridEditor(Long canvasWidth, Long canvasHeight)
        : width_(canvasWidth), height_(canvasHeight) {
        SetDefault();
    }

    /// Pixels from the symbol's left or top.
    double At(Guide guide) const { return guides_[guide]; }
    /// Puts a guide, but not beyond its opposite or out of the symbol. False when it was held back.
    bool Move(Guide guide, double to);
    /// A number typed for a guide. False, and nothing changes, when it does not keep the order or
    /// lies outside.
    bool Validate(Guide guide, double value);
    /// The guide within `reach` pixels of a place, the nearest one.
    std::optional<Guide> Find(double x, double y, double reach) const;
    /// A quarter of the size from each side.
    void SetDefault();

    /// From and into twips.
    void Take(Long left, Long right, Long top, Long bottom);
    Long Twips(Guide guide) const;

private:
    static bool IsUpright(Guide guide) { return guide == XMin || guide == XMax; }
    double Lowest(Guide guide) const;
    double Highest(Guide guide) const;

    Long width_;
    Long height_;
    std::array<double, 4> guides_{};
};

}  // namespace tamber

#include "app/editors/ScalingGridEditor.h"

#include <algorithm>
#include <cmath>

#include "platform/rounding.h"
#include "platform/twips.h"

namespace tamber {

double ScalingGridEditor::Lowest(Guide guide) const {
    return guide == XMax ? guides_[XMin] : guide == YMax ? guides_[YMin] : 0;
}

double ScalingGridEditor::Highest(Guide guide) const {
    if (guide == XMin) return guides_[XMax];
    if (guide == YMin) return guides_[YMax];
    return IsUpright(guide) ? width_ : height_;
}

bool ScalingGridEditor::Move(Guide guide, double to) {
    guides_[guide] = std::clamp(to, Lowest(guide), std::max(Lowest(guide), Highest(guide)));
    return guides_[guide] == to;
}

bool ScalingGridEditor::Validate(Guide guide, double value) {
    if (!(value >= Lowest(guide) && value <= Highest(guide))) return false;
    guides_[guide] = value;
    return true;
}

std::optional<ScalingGridEditor::Guide> ScalingGridEditor::Find(double x, double y,
                                                                double reach) const {
    std::optional<Guide> nearest;
    double least = reach;
    for (const Guide guide : {XMin, XMax, YMin, YMax}) {
        const double distance = std::abs((IsUpright(guide) ? x : y) - guides_[guide]);
        if (distance > least || (nearest && distance == least)) continue;
        nearest = guide;
        least = distance;
    }
    return nearest;
}

void ScalingGridEditor::SetDefault() {
    guides_ = {width_ / 4.0, width_ * 3 / 4.0, height_ / 4.0, height_ * 3 / 4.0};
}

void ScalingGridEditor::Take(Long left, Long right, Long top, Long bottom) {
    guides_ = {double(left) / TwipsPerPixel, double(right) / TwipsPerPixel,
               double(top) / TwipsPerPixel, double(bottom) / TwipsPerPixel};
}

Long ScalingGridEditor::Twips(Guide guide) const {
    return RoundToLong(guides_[guide] * TwipsPerPixel);
}

}  // namespace tamber

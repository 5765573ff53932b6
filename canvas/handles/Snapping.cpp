#include "canvas/handles/Snapping.h"

#include <algorithm>
#include <cmath>

namespace tamber {

void Snapping::Add(Lines& lines, double at) {
    const auto place = std::lower_bound(lines.begin(), lines.end(), at);
    if (place == lines.end() || *place != at) lines.insert(place, at);
}

void Snapping::AddBox(const StageBox& box) {
    for (const double x : {box.Left, (box.Left + box.Right) / 2, box.Right}) AddLineX(x);
    for (const double y : {box.Top, (box.Top + box.Bottom) / 2, box.Bottom}) AddLineY(y);
}

std::optional<double> Snapping::Nearest(const Lines& lines, double place) const {
    std::optional<double> nearest;
    const auto take = [&](double line) {
        if (!nearest || std::abs(line - place) < std::abs(*nearest - place)) nearest = line;
    };
    const auto behind = std::lower_bound(lines.begin(), lines.end(), place);
    if (behind != lines.end()) take(*behind);
    if (behind != lines.begin()) take(*(behind - 1));
    if (GridWidth > 0) take(std::round(place / GridWidth) * GridWidth);
    return nearest;
}

Snapping::Pull Snapping::PullTo(const Lines& lines, const std::array<double, 3>& places) const {
    Pull best;
    for (const double place : places) {
        const auto line = Nearest(lines, place);
        if (!line || std::abs(*line - place) > Reach) continue;
        if (!best.Line || std::abs(*line - place) < std::abs(best.Way))
            best = {*line - place, line};
    }
    return best;
}

}  // namespace tamber

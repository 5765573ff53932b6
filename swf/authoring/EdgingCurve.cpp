#include "swf/authoring/EdgingCurve.h"

#include <algorithm>
#include <cmath>

#include "platform/rounding.h"

namespace tamber {

EdgingCurve::EdgingCurve(const clsEdgingTable& table) {
    const auto& points = table.Points;
    const std::size_t count = points.size();
    if (count < 3) return;
    double startX = points[0].X;
    double startY = points[0].Y;
    for (std::size_t i = 1; i + 1 < count; ++i) {
        const bool last = i + 2 == count;
        const double controlX = points[i].X;
        const double controlY = points[i].Y;
        const double endX = last ? points[i + 1].X : (controlX + points[i + 1].X) / 2.0;
        const double endY = last ? points[i + 1].Y : (controlY + points[i + 1].Y) / 2.0;
        records_.push_back({endX, startX - 2.0 * controlX + endX, controlX - startX, startX, startY,
                            controlY, endY});
        startX = endX;
        startY = endY;
    }
}

Long EdgingCurve::TweenRatio(Single t) const {
    auto found = std::find_if(records_.begin(), records_.end(),
                              [t](const Record& record) { return record.endX >= t; });
    if (found == records_.end()) --found;
    const Record& r = *found;
    double u = 0.5;
    if (r.ax != 0) {
        const double root = std::max(0.0, r.bx * r.bx - r.ax * (r.cx - t));
        u = (std::sqrt(root) - r.bx) / r.ax;
    } else if (r.bx != 0) {
        u = (t - r.cx) / (2.0 * r.bx);
    }
    const double v = 1.0 - u;
    const double y = v * v * r.y0 + 2.0 * v * u * r.y1 + u * u * r.y2;
    return RoundToLong(y * 65535.0);
}

}  // namespace tamber

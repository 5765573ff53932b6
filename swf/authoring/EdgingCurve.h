#pragma once

#include <vector>

#include "document/elements/clsEdgingTable.h"

namespace tamber {

/// An easing table as a chain of quadratic curves, time 0 to 1 against progress 0 to 1.
class EdgingCurve {
public:
    /// A table of the two end points alone, or of fewer, has no curve.
    explicit EdgingCurve(const clsEdgingTable& table);

    bool Empty() const { return records_.empty(); }
    /// Progress at time `t` as a ratio, 1.0 being 65535.
    Long TweenRatio(Single t) const;

private:
    struct Record {
        double endX;
        double ax, bx, cx;  ///< x(u) = ax u² + 2 bx u + cx
        double y0, y1, y2;
    };

    std::vector<Record> records_;
};

}  // namespace tamber

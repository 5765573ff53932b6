#pragma once

#include "platform/types.h"

namespace tamber {

/// A point of a motion path, in pixels on the stage.
class clsTweenPointData {
public:
    /// 0: the path passes through the point. Else: a curve control point.
    Long PointType = 0;
    Single X = 0;
    Single Y = 0;

    bool operator==(const clsTweenPointData&) const = default;
};

}  // namespace tamber

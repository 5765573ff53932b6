#pragma once

#include "document/cells/Fields.h"

namespace tamber {

/// A point of a motion path, in pixels on the stage.
class clsTweenPointData {
public:
    /// 0: the path passes through the point. Else: a curve control point.
    Long PointType = 0;
    Single X = 0;
    Single Y = 0;

    bool operator==(const clsTweenPointData&) const = default;

    static constexpr auto Fields() {
        using T = clsTweenPointData;
        return std::tuple{
            Field(u"type", &T::PointType, Words({{0, u"On"}, {1, u"Off"}}, 1)),
            Field(u"x", &T::X),
            Field(u"y", &T::Y),
        };
    }
};

}  // namespace tamber

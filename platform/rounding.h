#pragma once

#include <cmath>
#include <limits>

#include "platform/types.h"

namespace tamber {

/// Rounds half to even to a 32-bit integer. A value that does not fit, or no number, gives the
/// lowest Long, as the processor's own conversion does.
inline Long RoundToLong(double value) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0))
        return std::numeric_limits<Long>::min();
    return static_cast<Long>(rounded);
}

}  // namespace tamber

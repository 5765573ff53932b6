#pragma once

#include "platform/types.h"

namespace tamber {

/// Rows of bytes, `Channels` of them a pixel.
struct BytePlane {
    Byte* Bytes = nullptr;
    Long Width = 0;
    Long Height = 0;
    Long Channels = 1;
};

/// Blurs with boxes of `sizeX` by `sizeY` pixels, as often as `passes` says; beyond the edges all
/// is 0. A box of a size that is no odd number has ends that count in part. Sizes up to 1 do
/// nothing. The time does not depend on the sizes.
void BoxBlur(const BytePlane& plane, double sizeX, double sizeY, Long passes);

}  // namespace tamber

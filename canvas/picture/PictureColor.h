#pragma once

#include "platform/types.h"

namespace tamber {

/// A colour that is not premultiplied.
struct PictureColor {
    Byte R = 0;
    Byte G = 0;
    Byte B = 0;
    Byte A = 255;
    bool operator==(const PictureColor&) const = default;
};

}  // namespace tamber

#pragma once

#include "document/records/clsPropertyBmp.h"
#include "swf/authoring/clsSWFAdmin.h"

namespace tamber {

/// A picture's own identifier, and that of the shape that shows it.
struct BitmapCharacters {
    Long Bitmap = 0;
    Long Shape = 0;
};

/// Writes the definitions of a picture, and of a shape of its size that is filled with it.
BitmapCharacters DefineBitmap(clsSWFAdmin& admin, const clsPropertyBmp& picture, Long frame);

}  // namespace tamber

#pragma once

#include "canvas/picture/BitmapCharacter.h"
#include "platform/types.h"

namespace tamber {

/// Decodes the picture of a DefineBits, DefineBitsJPEG2, DefineBitsJPEG3, DefineBitsLossless or
/// DefineBitsLossless2 tag, from behind its identifier; `tables` are those of the movie's
/// JPEGTables. Null for a picture that is damaged, or larger than a movie can show.
std::shared_ptr<BitmapCharacter> ReadBitmapTag(Long tag, ByteView body, ByteView tables);

}  // namespace tamber

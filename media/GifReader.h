#pragma once

#include "media/clsDib.h"
#include "platform/types.h"

namespace tamber {

/// Reads the first picture of a GIF file at its place on the logical screen, as 8 bits with a
/// palette. What the picture does not cover is transparent; a picture that reaches beyond the
/// screen enlarges it. False for a file that is damaged or cut; `dib` may then hold remains.
bool ReadGif(ByteView file, clsDib& dib);

}  // namespace tamber

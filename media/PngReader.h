#pragma once

#include "media/clsDib.h"
#include "platform/types.h"

namespace tamber {

/// Reads a PNG file of any colour type. A palette picture and a grey one without transparency
/// become 8 bits with a palette, all others 32 bits; channels of 16 bits keep their upper 8. False
/// for a file that is damaged or cut; `dib` may then hold remains.
bool ReadPng(ByteView file, clsDib& dib);

}  // namespace tamber

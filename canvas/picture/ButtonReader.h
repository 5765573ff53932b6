#pragma once

#include "canvas/picture/PlacementReader.h"
#include "canvas/picture/SpriteCharacter.h"

namespace tamber {

/// Reads the up state of a DefineButton or DefineButton2 from behind the identifier. Damage raises
/// a RuntimeError.
std::shared_ptr<SpriteCharacter> ReadButton(SwfBits bits, Long tag, const FindCharacter& find);

}  // namespace tamber

#pragma once

#include <functional>

#include "canvas/picture/EditTextCharacter.h"
#include "canvas/picture/TextCharacter.h"
#include "swf/SwfBits.h"

namespace tamber {

/// Finds a font by its identifier; null where there is none.
using FindFont = std::function<std::shared_ptr<const FontCharacter>(Long id)>;

/// Reads DefineText or DefineText2 from behind the identifier. Damage raises a RuntimeError.
std::shared_ptr<TextCharacter> ReadText(SwfBits bits, bool hasAlpha, const FindFont& find);

/// Reads DefineEditText from behind the identifier. Damage raises a RuntimeError.
std::shared_ptr<EditTextCharacter> ReadEditText(SwfBits bits, Long version, const FindFont& find);

}  // namespace tamber

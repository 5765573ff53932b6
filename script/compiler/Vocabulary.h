#pragma once

#include <string>

#include "script/compiler/Builtin.h"
#include "script/compiler/Symbol.h"

namespace tamber {

/// The text with its Latin letters small, as names are compared below that version.
std::string Lower(std::string_view text);

/// Looks up what a name means in a version: keyword, property, built-in function. Below version 7
/// properties and functions are found without regard to case, keywords in version 4 only.
void Classify(Symbol& symbol, Long version);

/// Name of a property of a movie clip; empty for a number that none has.
std::string_view PropertyName(std::size_t number);

}  // namespace tamber

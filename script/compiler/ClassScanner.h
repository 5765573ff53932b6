#pragma once

#include <string_view>
#include <vector>

#include "script/compiler/Imports.h"

namespace tamber {

/// The whole names of the classes and interfaces that a source defines, so that what stands before
/// a definition may know of it.
std::vector<Imports::Path> FindClasses(std::string_view source, Long version, SymbolTable& symbols);

}  // namespace tamber

#pragma once

#include <vector>

#include "platform/UserInterface.h"
#include "platform/types.h"

namespace tamber {

/// Kind of the symbol that a file becomes, by its extension in any letter case; 0 when none does.
Long SymbolKindOfFile(StringView path);
/// What a file dialog offers for a kind that is made from files.
FileFilter SymbolFileFilter(Long kind);
/// What a file dialog offers for adding: all kinds together, then each.
std::vector<FileFilter> SymbolFileFilters();

}  // namespace tamber

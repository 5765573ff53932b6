#pragma once

#include <memory>

#include "document/ProjectReader.h"
#include "document/symbols/clsSymbolData.h"

namespace tamber {

/// A symbol made of a file, without a number; null when none can be made of it, which the user was
/// told. The path is absolute. A text takes in what its file holds and forgets the file.
std::shared_ptr<clsSymbolData> SymbolFromFile(StringView path, const ProjectAssets& assets);

/// Fills a symbol's record from its file. False when that cannot be read, which the user was told;
/// the record may be filled in part.
bool ReadSymbolFile(clsSymbolData& symbol, const ProjectAssets& assets);

}  // namespace tamber

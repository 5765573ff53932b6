#pragma once

#include "document/symbols/clsSymbolData.h"
#include "platform/Collection.h"

namespace tamber {

/// What the rows of a library are put in order by: their numbers, or their kinds and within a kind
/// their numbers.
enum class SymbolOrder { Id, Type };

/// The library with the rows `first` to `last` in order. Folders stay where they are and keep what
/// is in them: each run of rows that stand between folder rows and in one folder is put in order by
/// itself. Rows of one rank keep their order.
std::shared_ptr<Collection<clsSymbolData>> SortSymbols(const Collection<clsSymbolData>& library,
                                                       SymbolOrder order, bool descending,
                                                       Long first, Long last);

/// The library with the folders, and what is in them, before the other rows of their level.
std::shared_ptr<Collection<clsSymbolData>> SortFolders(const Collection<clsSymbolData>& library);

}  // namespace tamber

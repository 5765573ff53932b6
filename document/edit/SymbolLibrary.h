#pragma once

#include "document/edit/SymbolReferences.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/Collection.h"
#include "platform/types.h"

namespace tamber {

/// Rows of a library, both ends included.
struct SymbolRange {
    Long First = 1;
    Long Last = 0;
    bool Holds(Long row) const { return row >= First && row <= Last; }
    Long Count() const { return Last - First + 1; }
};

/// The default name `prefix` and N, N being the smallest positive number that no symbol of the kind
/// has in a name of that form.
String GetSymbolDefName(const Collection<clsSymbolData>& library, Long kind, StringView prefix);

/// Inserts a symbol at the row `index` (before it, or with `after` behind it), into the folder that
/// the row is in. A folder row takes it as its first content with `inFolder`; without, the place
/// behind a folder is behind all that is in it. An index beyond the last row appends the symbol
/// outside all folders. `newIndex` is where it stands. `Index` of the symbols stays as it was.
void AddSymbolData(Collection<clsSymbolData>& library, Long index,
                   const std::shared_ptr<clsSymbolData>& symbol, bool inFolder, bool after,
                   Long& newIndex);

/// The rows with all that is in the folders among them.
SymbolRange WholeFolders(const Collection<clsSymbolData>& library, SymbolRange rows);

/// The symbols of some rows, in order.
SymbolList SymbolsOf(const Collection<clsSymbolData>& library, SymbolRange rows);

/// Takes symbols out of a library; folders among them must come with all that is in them.
void TakeOut(Collection<clsSymbolData>& library, const SymbolList& symbols);

/// Moves rows, whole folders, to the place that `AddSymbolData` would give a symbol; `rows` is
/// where they stand then. False, with nothing changed, when the target row is one of them: a folder
/// cannot go into itself or a folder below it.
bool MoveSymbols(Collection<clsSymbolData>& library, SymbolRange& rows, Long target, bool inFolder,
                 bool after);

/// Gives each symbol its `Index` and its folder, by the row counts of the folders; counts that go
/// beyond what is there are put right.
void NumberSymbols(Collection<clsSymbolData>& library);

}  // namespace tamber

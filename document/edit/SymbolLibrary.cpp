#include "document/edit/SymbolLibrary.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "document/Project.h"
#include "document/records/clsPropertySymbolFolder.h"
#include "platform/text.h"

namespace tamber {

namespace {

/// The number behind the prefix of a name, 0 for a name of another form or a number above
/// `highest`.
std::size_t NumberInName(StringView name, StringView prefix, std::size_t highest) {
    if (!name.starts_with(prefix) || name.size() == prefix.size()) return 0;
    std::size_t number = 0;
    for (const char16_t c : name.substr(prefix.size())) {
        if (c < u'0' || c > u'9') return 0;
        number = std::min(number * 10 + static_cast<std::size_t>(c - u'0'), highest + 1);
    }
    return number > highest ? 0 : number;
}

/// Rows below a folder, 0 for any other symbol.
Long RowsBelow(const clsSymbolData& symbol) {
    const auto* folder = symbol.Property<clsPropertySymbolFolder>();
    return folder != nullptr ? folder->LayerCount : 0;
}

/// Last row of a folder's contents, or the row itself.
Long EndOf(const Collection<clsSymbolData>& library, Long row) {
    return row + std::min(RowsBelow(*library(row)), library.Count() - row);
}

void CountIn(const std::shared_ptr<clsSymbolData>& folder, Long rows) {
    if (folder) folder->AddInFolder(rows);
}

/// Counts symbols into the folders that they are in, or out of them with `sign` -1. Those inside a
/// folder among them stay counted in it.
void CountAll(const SymbolList& symbols, const SymbolSet& among, Long sign) {
    for (const auto& symbol : symbols)
        if (const auto folder = symbol->ParentFolder(); !among.contains(folder.get()))
            CountIn(folder, sign * (RowsBelow(*symbol) + 1));
}

SymbolSet SetOf(const SymbolList& symbols) {
    SymbolSet set;
    for (const auto& symbol : symbols) set.insert(symbol.get());
    return set;
}

/// Where something is put: before the row `Row`, in `Folder`.
struct Place {
    Long Row = 1;
    std::shared_ptr<clsSymbolData> Folder;
};

Place PlaceAt(const Collection<clsSymbolData>& library, Long index, bool inFolder, bool after) {
    if (index > library.Count()) return {library.Count() + 1, nullptr};
    const std::shared_ptr<clsSymbolData>& row = library(index);
    if (inFolder && row->eType() == KindSymbolFolder) return {index + 1, row};
    return {after ? EndOf(library, index) + 1 : index, row->ParentFolder()};
}

}  // namespace

String GetSymbolDefName(const Collection<clsSymbolData>& library, Long kind, StringView prefix) {
    const auto count = static_cast<std::size_t>(library.Count());
    std::vector<bool> used(count + 1);
    for (const auto& symbol : library)
        if (symbol->eType() == kind) used[NumberInName(symbol->Value(), prefix, count)] = true;
    const auto free = std::find(used.begin() + 1, used.end(), false);
    return String(prefix) + ToText(static_cast<Long>(free - used.begin()));
}

void AddSymbolData(Collection<clsSymbolData>& library, Long index,
                   const std::shared_ptr<clsSymbolData>& symbol, bool inFolder, bool after,
                   Long& newIndex) {
    const Place place = PlaceAt(library, index, inFolder, after);
    symbol->ParentFolder(place.Folder);
    CountIn(place.Folder, 1);
    library.Insert(symbol, place.Row);
    newIndex = place.Row;
}

SymbolRange WholeFolders(const Collection<clsSymbolData>& library, SymbolRange rows) {
    for (Long row = rows.First; row <= rows.Last; ++row)
        rows.Last = std::max(rows.Last, EndOf(library, row));
    return rows;
}

SymbolList SymbolsOf(const Collection<clsSymbolData>& library, SymbolRange rows) {
    return SymbolList(library.begin() + (rows.First - 1), library.begin() + rows.Last);
}

void TakeOut(Collection<clsSymbolData>& library, const SymbolList& symbols) {
    const SymbolSet leaving = SetOf(symbols);
    CountAll(symbols, leaving, -1);
    library.RemoveIf([&leaving](const auto& symbol) { return leaving.contains(symbol.get()); });
    for (const auto& symbol : symbols) {
        symbol->Index = 0;
        symbol->ParentFolder(nullptr);
    }
}

bool MoveSymbols(Collection<clsSymbolData>& library, SymbolRange& rows, Long target, bool inFolder,
                 bool after) {
    const SymbolRange moved = WholeFolders(library, rows);
    if (moved.Holds(target)) return false;
    const Place place = PlaceAt(library, target, inFolder, after);
    const SymbolList symbols = SymbolsOf(library, moved);
    const SymbolSet leaving = SetOf(symbols);
    CountAll(symbols, leaving, -1);
    for (const auto& symbol : symbols)
        if (!leaving.contains(symbol->ParentFolder().get())) symbol->ParentFolder(place.Folder);
    CountAll(symbols, leaving, 1);
    library.RemoveIf([&leaving](const auto& symbol) { return leaving.contains(symbol.get()); });
    const Long before = std::clamp(place.Row - moved.First, 0, moved.Count());
    rows = {place.Row - before, place.Row - before + moved.Count() - 1};
    library.Insert(symbols.begin(), symbols.end(), rows.First);
    return true;
}

void NumberSymbols(Collection<clsSymbolData>& library) {
    Long index = 0;
    for (const auto& symbol : library) symbol->Index = ++index;
    NestSymbols(library);
    std::vector<Long> below(static_cast<std::size_t>(library.Count()) + 1);
    for (auto symbol = std::make_reverse_iterator(library.end());
         symbol != std::make_reverse_iterator(library.begin()); ++symbol) {
        const Long rows = below[static_cast<std::size_t>((*symbol)->Index)];
        if (const auto folder = (*symbol)->ParentFolder())
            below[static_cast<std::size_t>(folder->Index)] += rows + 1;
        if (auto* folder = (*symbol)->Property<clsPropertySymbolFolder>())
            folder->LayerCount = rows;
    }
}

}  // namespace tamber

#include "document/symbols/Nesting.h"

#include <utility>
#include <vector>

#include "document/elements/clsLayerFolder.h"

namespace tamber {

namespace {

/// Gives each row its folder. `rowsBelow` tells how many rows follow a folder row as its contents,
/// and -1 for a row that is no folder.
template <class T, class RowsBelow>
void Nest(Collection<T>& rows, RowsBelow rowsBelow) {
    std::vector<std::pair<std::shared_ptr<T>, Long>> open;  // a folder and its last row
    for (Long i = 1; i <= rows.Count(); ++i) {
        while (!open.empty() && open.back().second < i) open.pop_back();
        const std::shared_ptr<T>& row = rows(i);
        row->ParentFolder(open.empty() ? nullptr : open.back().first);
        const Long below = rowsBelow(*row);
        if (below > 0) open.emplace_back(row, below > rows.Count() - i ? rows.Count() : i + below);
    }
}

}  // namespace

void NestSymbols(Collection<clsSymbolData>& symbols) {
    Nest(symbols, [](const clsSymbolData& symbol) {
        return symbol.PropertyData() ? symbol.PropertyData()->RowsBelow() : -1;
    });
}

void NestLayers(Collection<clsLayer>& layers) {
    Nest(layers, [](const clsLayer& layer) {
        const clsLayerFolder* folder = layer.Folder();
        return folder != nullptr ? folder->LayerCount : -1;
    });
}

}  // namespace tamber

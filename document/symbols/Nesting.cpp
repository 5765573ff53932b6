#include "document/symbols/Nesting.h"

#include <algorithm>
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

/// Hands `fit` each row with the most rows that can be below it; it gives the rows that are below
/// the folder then, and -1 for other rows. `isEnd` tells a row that no folder holds.
template <class T, class Fit, class IsEnd>
void FitCounts(const Collection<T>& rows, Fit fit, IsEnd isEnd) {
    // The last row that a folder can reach from each row.
    std::vector<Long> reach(static_cast<std::size_t>(rows.Count()) + 1, rows.Count());
    for (Long i = rows.Count(), last = i; i >= 1; --i) {
        reach[static_cast<std::size_t>(i)] = last;
        if (isEnd(*rows(i))) last = i - 1;
    }
    std::vector<Long> ends;
    for (Long i = 1; i <= rows.Count(); ++i) {
        while (!ends.empty() && ends.back() < i) ends.pop_back();
        const Long end =
            std::min(reach[static_cast<std::size_t>(i)], ends.empty() ? rows.Count() : ends.back());
        const Long below = fit(*rows(i), end - i);
        if (below > 0) ends.push_back(i + below);
    }
}

}  // namespace

void FitSymbolCounts(Collection<clsSymbolData>& symbols) {
    const auto fit = [](clsSymbolData& symbol, Long most) {
        clsPropertyData* record = symbol.PropertyData().get();
        if (symbol.eType() != KindSymbolFolder) return -1;
        const Long fitted = std::clamp(record->RowsBelow(), 0, most);
        record->AddRows(fitted - record->RowsBelow());
        return fitted;
    };
    FitCounts(symbols, fit, [](const clsSymbolData&) { return false; });
}

void FitLayerCounts(Collection<clsLayer>& layers) {
    const auto fit = [](clsLayer& layer, Long most) {
        clsLayerFolder* folder = layer.Folder();
        if (folder == nullptr) return -1;
        return folder->LayerCount = std::clamp(folder->LayerCount, 0, most);
    };
    FitCounts(layers, fit,
              [](const clsLayer& layer) { return layer.SymbolData()->eType() == KindBackGround; });
}

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

#include "canvas/timeline/SymbolRows.h"

#include <algorithm>
#include <unordered_map>

#include "canvas/timeline/RowRange.h"
#include "document/records/clsPropertySymbolFolder.h"

namespace tamber {

namespace {

Long LastOf(const clsSymbolData& symbol, Long row, Long count) {
    const auto* folder = symbol.Property<clsPropertySymbolFolder>();
    return folder == nullptr ? row : std::min(row + folder->LayerCount, count);
}

/// Folders that hold all rows of the range, the outermost first.
std::vector<std::shared_ptr<clsSymbolData>> FoldersAround(const Collection<clsSymbolData>& library,
                                                          RowRange range) {
    std::vector<std::shared_ptr<clsSymbolData>> folders;
    for (auto folder = library(range.First)->ParentFolder(); folder;
         folder = folder->ParentFolder())
        if (LastOf(*folder, folder->Index, library.Count()) >= range.Last)
            folders.insert(folders.begin(), folder);
    return folders;
}

/// Makes the rows one after the other, each in the row of its symbol's folder.
class RowMaker {
public:
    explicit RowMaker(Long frame) : frame_(frame) {}

    void Add(const std::shared_ptr<clsSymbolData>& symbol) {
        if (symbol->eType() == KindClass) return;
        auto layer = symbol->eType() == KindSymbolFolder ? FolderFor(*symbol) : LayerFor(symbol);
        if (const auto folder = RowOfFolderAround(*symbol)) {
            layer->ParentFolder(folder);
            folder->AddInFolder(1);
        }
        if (symbol->eType() == KindSymbolFolder) folders_.emplace(symbol.get(), layer);
        rows_.Add(std::move(layer));
    }
    Collection<clsLayer> Take() { return std::move(rows_); }

private:
    /// The row of the innermost folder around a symbol that has one, or null: a range may begin
    /// within a folder and end behind it.
    std::shared_ptr<clsLayer> RowOfFolderAround(const clsSymbolData& symbol) const {
        for (auto folder = symbol.ParentFolder(); folder; folder = folder->ParentFolder())
            if (const auto row = folders_.find(folder.get()); row != folders_.end())
                return row->second;
        return nullptr;
    }
    static std::shared_ptr<clsLayer> FolderFor(const clsSymbolData& symbol) {
        auto layer = MakeOwnLayer(KindLayerFolder, 1);
        layer->LayerName = symbol.Value();
        return layer;
    }
    std::shared_ptr<clsLayer> LayerFor(const std::shared_ptr<clsSymbolData>& symbol) const {
        auto layer = std::make_shared<clsLayer>();
        layer->SymbolData(symbol);
        Long index = 0;
        layer->Add(frame_, nullptr, index);
        return layer;
    }

    Long frame_;
    Collection<clsLayer> rows_;
    std::unordered_map<const clsSymbolData*, std::shared_ptr<clsLayer>> folders_;
};

}  // namespace

std::shared_ptr<clsLayer> MakeOwnLayer(Long kind, Long frame) {
    auto layer = std::make_shared<clsLayer>();
    layer->SymbolData(std::make_shared<clsSymbolData>(kind));
    Long index = 0;
    layer->Add(frame, nullptr, index);
    return layer;
}

Collection<clsLayer> LayersForSymbols(const Collection<clsSymbolData>& library, Long row1,
                                      Long row2, Long frame) {
    const auto [first, last] = std::minmax(row1, row2);
    if (first < 1 || last > library.Count()) return {};
    RowRange range{first, last};
    for (Long row = range.First; row <= range.Last; ++row)
        range.Last = std::max(range.Last, LastOf(*library(row), row, library.Count()));
    RowMaker maker(frame);
    for (const auto& folder : FoldersAround(library, range)) maker.Add(folder);
    for (Long row = range.First; row <= range.Last; ++row) maker.Add(library(row));
    return maker.Take();
}

void RemoveRefusedRows(Collection<clsLayer>& rows,
                       const std::function<bool(const clsSymbolData& symbol)>& refused) {
    for (Long row = 1; row <= rows.Count();) {
        if (refused(*rows(row)->SymbolData()))
            RemoveRow(rows, row);
        else
            ++row;
    }
}

}  // namespace tamber

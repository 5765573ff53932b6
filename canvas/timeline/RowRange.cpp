#include "canvas/timeline/RowRange.h"

#include <algorithm>

#include "document/elements/clsLayerFolder.h"
#include "document/symbols/clsSymbolData.h"

namespace tamber {

namespace {

Long RowOf(const Collection<clsLayer>& layers, const std::shared_ptr<clsLayer>& layer) {
    return static_cast<Long>(std::find(layers.begin(), layers.end(), layer) - layers.begin()) + 1;
}

/// The row itself, or the outermost collapsed folder that hides it.
std::shared_ptr<clsLayer> ShownRow(const std::shared_ptr<clsLayer>& layer) {
    std::shared_ptr<clsLayer> shown = layer;
    for (auto folder = layer->ParentFolder(); folder; folder = folder->ParentFolder())
        if (const clsLayerFolder* state = folder->Folder(); state != nullptr && !state->Expand)
            shown = folder;
    return shown;
}

}  // namespace

bool IsBackground(const clsLayer& layer) {
    return layer.SymbolData() && layer.SymbolData()->eType() == KindBackGround;
}

bool IsFolder(const clsLayer& layer) {
    return layer.SymbolData() && layer.SymbolData()->eType() == KindLayerFolder;
}

Long RowsBelow(const clsLayer& layer) {
    const clsLayerFolder* state = layer.Folder();
    return state != nullptr ? state->LayerCount : 0;
}

RowRange SelectedRows(const Collection<clsLayer>& layers, Long row1, Long row2) {
    const auto [first, last] = std::minmax(row1, row2);
    RowRange range{std::max(first, 1), std::min(last, layers.Count())};
    if (range.Last >= range.First && IsBackground(*layers(range.Last))) --range.Last;
    return range;
}

RowPlace PlaceAt(const Collection<clsLayer>& layers, Long row, bool inFolder, bool after) {
    if (row < 1 || row > layers.Count()) {
        const bool behindBackground = !layers.Empty() && IsBackground(*layers(layers.Count()));
        return {layers.Count() + (behindBackground ? 0 : 1), nullptr};
    }
    const std::shared_ptr<clsLayer> target = ShownRow(layers(row));
    if (target != layers(row)) row = RowOf(layers, target);
    if (inFolder && IsFolder(*target)) return {row + 1, target};
    if (after && !IsBackground(*target)) row += 1 + RowsBelow(*target);
    return {row, target->ParentFolder()};
}

void InsertRows(Collection<clsLayer>& layers, const RowPlace& place,
                const Collection<clsLayer>& rows) {
    Long row = place.Row;
    for (const auto& layer : rows) {
        if (!layer->ParentFolder()) layer->ParentFolder(place.Folder);
        layers.Insert(layer, row++);
    }
    if (place.Folder) place.Folder->AddInFolder(rows.Count());
}

Long RemoveRow(Collection<clsLayer>& layers, Long row) {
    const Long count = std::min(1 + RowsBelow(*layers(row)), layers.Count() - row + 1);
    if (const auto folder = layers(row)->ParentFolder()) folder->AddInFolder(-count);
    for (Long i = 0; i < count; ++i) layers.Remove(row);
    return count;
}

}  // namespace tamber

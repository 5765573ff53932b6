#include "canvas/timeline/LayerClipboard.h"

#include <algorithm>

#include "document/Project.h"

namespace tamber {

namespace {

Collection<clsLayer> CopyOf(const Collection<clsLayer>& layers, RowRange range) {
    Collection<clsLayer> copies;
    for (Long row = range.First; row <= range.Last; ++row) {
        range.Last = std::max(range.Last, std::min(row + RowsBelow(*layers(row)), layers.Count()));
        copies.Add(layers(row)->Copy());
    }
    NestLayers(copies);
    return copies;
}

}  // namespace

void LayerClipboard::Copy(const Collection<clsLayer>& layers, RowRange range) {
    rows_ = CopyOf(layers, range);
}

Collection<clsLayer> LayerClipboard::CopyRows() const {
    return CopyOf(rows_, {1, rows_.Count()});
}

bool RemoveLayers(Collection<clsLayer>& layers, RowRange range) {
    Long left = range.Last - range.First + 1;
    const bool any = left > 0;
    while (left > 0) left -= RemoveRow(layers, range.First);
    return any;
}

}  // namespace tamber

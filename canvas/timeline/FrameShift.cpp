#include "canvas/timeline/FrameShift.h"

#include <algorithm>

namespace tamber {

namespace {

/// A span whose end lay among the removed frames would reach into the next one.
void CutOverlaps(clsLayer& layer) {
    for (Long i = 2; i <= layer.ObjectCount(); ++i) {
        clsLayerObject& before = *layer.Object(i - 1);
        const Long start = layer.Object(i)->StartFrame();
        if (before.endFrame() >= start) before.endFrame(start - 1);
    }
}

bool ShiftOne(clsLayer& layer, Long frame1, Long frame2, ShiftDirection direction) {
    bool changed = false;
    if (direction == ShiftDirection::Right)
        layer.ShiftRight(frame1, frame2, changed);
    else
        layer.ShiftLeft(frame1, frame2, changed);
    if (changed) CutOverlaps(layer);
    return changed;
}

}  // namespace

bool ShiftRows(const Collection<clsLayer>& layers, RowRange rows, Long frame1, Long frame2,
               ShiftDirection direction) {
    bool changed = false;
    for (Long row = rows.First; row <= rows.Last; ++row)
        if (clsLayer& layer = *layers(row); !IsFolder(layer) && !IsBackground(layer))
            changed = ShiftOne(layer, frame1, frame2, direction) || changed;
    return changed;
}

bool ShiftSelected(const Collection<clsLayer>& layers, Long row1, Long row2, Long frame1,
                   Long frame2, ShiftDirection direction) {
    const auto [first, last] = std::minmax(row1, row2);
    if (first < 1 || last > layers.Count()) return false;
    clsLayer& selected = *layers(first);
    if (first != last) return ShiftRows(layers, {first, last}, frame1, frame2, direction);
    if (!IsFolder(selected)) return ShiftOne(selected, frame1, frame2, direction);
    const Long end = std::min(first + RowsBelow(selected), layers.Count());
    return ShiftRows(layers, {first + 1, end}, frame1, frame2, direction);
}

}  // namespace tamber

#include "canvas/timeline/FrameClipboard.h"

#include <algorithm>

#include "document/symbols/clsSymbolData.h"

namespace tamber {

namespace {

/// Fits the last key frame copied to a range of so many frames.
void FitToRange(clsLayerObject& last, Long frames) {
    if (last.blFixed || last.blTween)
        last.DispCount(1);
    else if (last.endFrame() > frames)
        last.endFrame(frames);
}

/// A copy for a layer, whose kind it takes.
std::shared_ptr<clsLayerObject> CopyFor(const clsLayer& layer, const clsLayerObject& object) {
    const Long kind = layer.SymbolData()->eTypeEx();
    if (object.SymbolType() == kind) return object.Copy();
    auto copy = std::make_shared<clsLayerObject>();
    copy->SymbolType(kind);
    object.CopyTo(*copy, true);
    return copy;
}

}  // namespace

void FrameClipboard::Copy(const clsLayer& layer, Long frame1, Long frame2) {
    const auto [first, last] = std::minmax(frame1, frame2);
    colCopyFrames = std::make_shared<Collection<clsLayerObject>>();
    for (const auto& object : layer.colObject) {
        if (object->StartFrame() > last) break;
        if (object->StartFrame() < first) continue;
        auto copy = object->Copy();
        copy->StartFrame(object->StartFrame() - first + 1);
        colCopyFrames->Add(std::move(copy));
    }
    if (colCopyFrames->Empty()) {
        colCopyFrames.reset();
        return;
    }
    CopyFrameCount = last - first + 1;
    FitToRange(*colCopyFrames->Item(colCopyFrames->Count()), CopyFrameCount);
}

void FrameClipboard::MakeRoom(clsLayer& layer, Long frame, Room room) const {
    bool changed = false;
    switch (room) {
        case Room::Clear:
            layer.RemoveRange(frame, frame + CopyFrameCount - 1, true, changed);
            return;
        case Room::Insert:
            layer.ShiftRight(frame, frame + CopyFrameCount - 1, changed);
            return;
        case Room::AsNeeded: {
            const auto later =
                std::find_if(layer.colObject.begin(), layer.colObject.end(),
                             [frame](const auto& object) { return object->StartFrame() >= frame; });
            if (later == layer.colObject.end()) return;
            const Long end = colCopyFrames->Item(colCopyFrames->Count())->endFrame();
            const Long overlap = frame - (*later)->StartFrame() + end;
            if (overlap >= 1) layer.ShiftRight(frame, frame + overlap - 1, changed);
            return;
        }
    }
}

Long FrameClipboard::Paste(clsLayer& layer, Long frame, Room room, Long lastFrame) const {
    MakeRoom(layer, frame, room);
    Long first = 0;
    for (const auto& object : *colCopyFrames) {
        Long index = 0;
        layer.Add(object->StartFrame() + frame - 1, CopyFor(layer, *object), index);
        if (first == 0) first = index;
    }
    layer.ChangeStartFrame(first, lastFrame);
    if (colCopyFrames->Count() > 1)
        layer.ChangeStartFrame(first + colCopyFrames->Count() - 1, lastFrame);
    return first;
}

}  // namespace tamber

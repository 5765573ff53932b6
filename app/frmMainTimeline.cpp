#include <algorithm>

#include "app/frmMain.h"
#include "canvas/timeline/FrameLabels.h"
#include "canvas/timeline/KeyFrameSpan.h"
#include "canvas/timeline/RowRange.h"
#include "document/elements/SymbolKinds.h"
#include "document/edit/TimelineLength.h"
#include "document/elements/clsLayerObjElement.h"
#include "swf/authoring/MovieLimits.h"

// The commands on the key frames of the selected rows.

namespace tamber {

bool frmMain::EditsClass() const {
    const auto symbol = EditSymbol();
    return symbol && symbol->eType() == KindClass;
}

std::shared_ptr<clsLayer> frmMain::FrameLayer() const {
    const auto layer = EditLayer();
    return layer && !IsFolder(*layer) && !EditsClass() ? layer : nullptr;
}

void frmMain::FramesChanged() {
    FitFixedKeyFrames(*editLayers_);
    FramesShown();
}

void frmMain::FramesShown() {
    view_->DispEditTimeLine();
    ShowEditFrame();
    AddUndoRedoData(UndoStep::Change);
}

void frmMain::RowsChanged() {
    view_->DispDataTbl();
    FramesChanged();
}

void frmMain::SelectFrames(Long frame1, Long frame2) {
    SelFrame1 = std::clamp(frame1, 1, MaxFrames);
    SelFrame2 = std::clamp(frame2, 1, MaxFrames);
    if (const auto layer = EditLayer()) layer->SetSelectIndex(SelFrame1);
    view_->DispEditTimeLine();
    ShowEditFrame();
}

void frmMain::mnuJump(Long frame) {
    SelectFrames(frame, frame);
}

bool frmMain::mnuJump(StringView label) {
    for (const FrameLabel& known : FrameLabels(*editLayers_)) {
        if (known.Name != label) continue;
        mnuJump(known.Frame);
        return true;
    }
    return false;
}

void frmMain::mnuCopyKeyFrames() {
    if (const auto layer = FrameLayer()) inCopyFrames.Copy(*layer, SelFrame1, SelFrame2);
}

void frmMain::mnuCutKeyFrames() {
    mnuCopyKeyFrames();
    mnuRemoveKeyFrames();
}

void frmMain::PasteKeyFrames(FrameClipboard::Room room) {
    const auto layer = FrameLayer();
    if (!layer || IsBackground(*layer) || inCopyFrames.Empty()) return;
    layer->SelectIndex = inCopyFrames.Paste(*layer, SelFrame1, room, LastFrame(*editLayers_));
    SelFrame2 = inCopyFrames.CopyFrameCount + SelFrame1 - 1;
    FramesChanged();
}

void frmMain::mnuPasteKeyFrames() {
    PasteKeyFrames(FrameClipboard::Room::AsNeeded);
}

void frmMain::mnuOverWriteKeyFrames() {
    PasteKeyFrames(FrameClipboard::Room::Clear);
}

void frmMain::mnuInsertKeyFrames() {
    PasteKeyFrames(FrameClipboard::Room::Insert);
}

void frmMain::mnuRemoveKeyFrames() {
    const auto layer = FrameLayer();
    if (!layer) return;
    const auto [first, last] = std::minmax(SelFrame1, SelFrame2);
    bool changed = false;
    layer->RemoveRange(first, last, false, changed);
    if (!changed) return;
    FitBefore(*layer, first, LastFrame(*editLayers_));
    FramesChanged();
}

void frmMain::mnuAddKeyFrame() {
    const auto layer = FrameLayer();
    if (!layer || IsBackground(*layer)) return;
    Long index = 0;
    layer->Add(SelFrame1, nullptr, index);
    if (index < 1) return;
    layer->SelectIndex = index;
    layer->ChangeStartFrame(index, LastFrame(*editLayers_));
    FramesChanged();
}

void frmMain::ShiftSelection(ShiftDirection direction) {
    if (!EditsClass() &&
        ShiftSelected(*editLayers_, SelIndex1, SelIndex2, SelFrame1, SelFrame2, direction))
        RowsChanged();
}

void frmMain::ShiftAll(ShiftDirection direction) {
    if (!EditsClass() &&
        ShiftRows(*editLayers_, {1, editLayers_->Count()}, SelFrame1, SelFrame2, direction))
        RowsChanged();
}

void frmMain::mnuShiftRight() {
    ShiftSelection(ShiftDirection::Right);
}

void frmMain::mnuShiftLeft() {
    ShiftSelection(ShiftDirection::Left);
}

void frmMain::mnuShiftRightAll() {
    ShiftAll(ShiftDirection::Right);
}

void frmMain::mnuShiftLeftAll() {
    ShiftAll(ShiftDirection::Left);
}

void frmMain::chkFixed(bool on) {
    const auto layer = FrameLayer();
    const auto object = layer ? layer->SelectObject() : nullptr;
    if (!object || object->blFixed == on) return;
    // The timeline stays as long as it is, although the key frame no longer decides that.
    const Long last = LastFrame(*editLayers_);
    object->blFixed = on;
    if (on)
        Stretch(*layer, layer->SelectIndex, last);
    else
        FitFixedKeyFrames(*editLayers_);
    FramesShown();
}

void frmMain::chkTween(bool on) {
    const auto layer = FrameLayer();
    const auto object = layer ? layer->SelectObject() : nullptr;
    if (!object || object->blTween == on) return;
    object->blTween = on;
    if (on) Stretch(*layer, layer->SelectIndex, object->StartFrame());
    FramesChanged();
}

void frmMain::cmdCopyLObject(Long index) {
    const auto layer = FrameLayer();
    const auto object = layer ? layer->SelectObject() : nullptr;
    const auto source = !object      ? nullptr
                        : index == 0 ? layer->PreviousObject()
                                     : layer->NextObject();
    if (!source || !source->Object || !object->Object) return;
    if (source->Object->Compare(*object->Object)) return;
    const auto copy = source->Object->Copy();
    if (auto* placement = copy->Placement()) object->Placement()->TPCopyTo(*placement);
    object->Object = copy;
    FramesChanged();
}

bool frmMain::ChangeStartFrame(Long frame) {
    const auto layer = FrameLayer();
    if (!layer || !layer->SelectObject() || frame > MaxFrames) return false;
    if (layer->SelectObject()->StartFrame() == frame) return true;
    if (!MoveStart(*layer, layer->SelectIndex, frame, LastFrame(*editLayers_))) return false;
    FramesChanged();
    return true;
}

bool frmMain::ChangeDispCount(Long count) {
    const auto layer = FrameLayer();
    if (!layer || !layer->SelectObject() || count > MaxFrames) return false;
    if (layer->SelectObject()->DispCount() == count) return true;
    if (!SetLength(*layer, layer->SelectIndex, count)) return false;
    FramesChanged();
    return true;
}

bool frmMain::ChangeKeyFrame(StringView tag, const std::function<bool(clsLayerObject&)>& change) {
    const auto layer = EditLayer();
    const auto object = layer ? layer->SelectObject() : nullptr;
    if (!object) return false;
    const auto before = object->Copy();
    if (!change(*object)) return false;
    if (object->Compare(*before)) return true;
    FitFixedKeyFrames(*editLayers_);
    view_->DispEditTimeLine();
    view_->ShowEditFrame();
    AddUndoRedoData(UndoStep::Change, tag);
    return true;
}

}  // namespace tamber

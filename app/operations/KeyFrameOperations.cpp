#include "app/operations/KeyFrameOperations.h"

#include <algorithm>

#include "app/session/Transaction.h"
#include "canvas/timeline/FrameLabels.h"
#include "canvas/timeline/KeyFrameSpan.h"
#include "canvas/timeline/RowRange.h"
#include "document/edit/TimelineLength.h"
#include "document/elements/clsLayerObjElement.h"
#include "swf/authoring/MovieLimits.h"

namespace tamber {

namespace {

using Kind = tamber::Change;
using Layers = Collection<clsLayer>;

constexpr SessionChange FramesChanged = Kind::KeyFrames | Kind::Selection;
constexpr SessionChange RowsChanged = Kind::Rows | Kind::KeyFrames;

}  // namespace

bool KeyFrameOperations::Jump(StringView label) {
    for (const FrameLabel& known : FrameLabels(*session_.colEditLayer())) {
        if (known.Name != label) continue;
        session_.SelectFrames(known.Frame, known.Frame);
        return true;
    }
    return false;
}

void KeyFrameOperations::Copy() {
    const auto layer = session_.FrameLayer();
    if (!layer) return;
    session_.inCopyFrames.Copy(*layer, session_.inSelection.Frame1, session_.inSelection.Frame2);
    session_.Note(Kind::Clipboard);
}

void KeyFrameOperations::Cut() {
    Copy();
    Remove();
}

void KeyFrameOperations::Paste(FrameClipboard::Room room) {
    const auto layer = session_.FrameLayer();
    const FrameClipboard& copied = session_.inCopyFrames;
    if (!layer || IsBackground(*layer) || copied.Empty()) return;
    ChangeTimeline(session_, FramesChanged, [&](Layers& layers) {
        const Long frame = session_.inSelection.Frame1;
        layer->SelectIndex = copied.Paste(*layer, frame, room, LastFrame(layers));
        session_.inSelection.Frame2 = copied.CopyFrameCount + frame - 1;
        FitFixedKeyFrames(layers);
        return true;
    });
}

void KeyFrameOperations::Remove() {
    const auto layer = session_.FrameLayer();
    if (!layer) return;
    ChangeTimeline(session_, FramesChanged, [&](Layers& layers) {
        const auto [first, last] =
            std::minmax(session_.inSelection.Frame1, session_.inSelection.Frame2);
        bool changed = false;
        layer->RemoveRange(first, last, false, changed);
        if (changed) FitFixedKeyFrames(layers);
        return changed;
    });
}

void KeyFrameOperations::Add() {
    const auto layer = session_.FrameLayer();
    if (!layer || IsBackground(*layer)) return;
    ChangeTimeline(session_, FramesChanged, [&](Layers& layers) {
        Long index = 0;
        layer->Add(session_.inSelection.Frame1, nullptr, index);
        if (index < 1) return false;
        layer->SelectIndex = index;
        layer->ChangeStartFrame(index, LastFrame(layers));
        FitFixedKeyFrames(layers);
        return true;
    });
}

void KeyFrameOperations::Shift(ShiftDirection direction) {
    if (session_.EditsClass()) return;
    ChangeTimeline(session_, RowsChanged, [&](Layers& layers) {
        const Selection& selected = session_.inSelection;
        if (!ShiftSelected(layers, selected.Row1, selected.Row2, selected.Frame1, selected.Frame2,
                           direction))
            return false;
        FitFixedKeyFrames(layers);
        return true;
    });
}

void KeyFrameOperations::ShiftAll(ShiftDirection direction) {
    if (session_.EditsClass()) return;
    ChangeTimeline(session_, RowsChanged, [&](Layers& layers) {
        const Selection& selected = session_.inSelection;
        if (!ShiftRows(layers, {1, layers.Count()}, selected.Frame1, selected.Frame2, direction))
            return false;
        FitFixedKeyFrames(layers);
        return true;
    });
}

void KeyFrameOperations::Fix(bool on) {
    const auto layer = session_.FrameLayer();
    const auto object = layer ? layer->SelectObject() : nullptr;
    if (!object || object->blFixed == on) return;
    ChangeTimeline(session_, FramesChanged, [&](Layers& layers) {
        // The timeline stays as long as it is, although the key frame no longer decides that.
        const Long last = LastFrame(layers);
        object->blFixed = on;
        if (on)
            Stretch(*layer, layer->SelectIndex, last);
        else
            FitFixedKeyFrames(layers);
        return true;
    });
}

void KeyFrameOperations::Tween(bool on) {
    const auto layer = session_.FrameLayer();
    const auto object = layer ? layer->SelectObject() : nullptr;
    if (!object || object->blTween == on) return;
    ChangeTimeline(session_, FramesChanged, [&](Layers& layers) {
        object->blTween = on;
        if (on) Stretch(*layer, layer->SelectIndex, object->StartFrame());
        FitFixedKeyFrames(layers);
        return true;
    });
}

void KeyFrameOperations::CopyElement(Long index) {
    const auto layer = session_.FrameLayer();
    const auto object = layer ? layer->SelectObject() : nullptr;
    const auto source = !object      ? nullptr
                        : index == 0 ? layer->PreviousObject()
                                     : layer->NextObject();
    if (!source || !source->Object || !object->Object) return;
    if (source->Object->Compare(*object->Object)) return;
    ChangeTimeline(session_, FramesChanged, [&](Layers& layers) {
        const auto copy = source->Object->Copy();
        if (auto* placement = copy->Placement()) object->Placement()->TPCopyTo(*placement);
        object->Object = copy;
        FitFixedKeyFrames(layers);
        return true;
    });
}

bool KeyFrameOperations::ChangeStartFrame(Long frame) {
    return ChangeSpan(frame, &clsLayerObject::StartFrame,
                      [](clsLayer& layer, Long value, Long lastFrame) {
                          return MoveStart(layer, layer.SelectIndex, value, lastFrame);
                      });
}

bool KeyFrameOperations::ChangeDispCount(Long count) {
    return ChangeSpan(count, &clsLayerObject::DispCount, [](clsLayer& layer, Long value, Long) {
        return SetLength(layer, layer.SelectIndex, value);
    });
}

bool KeyFrameOperations::ChangeSpan(Long value, Long (clsLayerObject::*present)() const,
                                    bool (*apply)(clsLayer& layer, Long value, Long lastFrame)) {
    const auto layer = session_.FrameLayer();
    const auto object = layer ? layer->SelectObject() : nullptr;
    if (!object || value > MaxFrames) return false;
    if ((*object.*present)() == value) return true;
    return ChangeTimeline(session_, FramesChanged, [&](Layers& layers) {
        if (!apply(*layer, value, LastFrame(layers))) return false;
        FitFixedKeyFrames(layers);
        return true;
    });
}

bool KeyFrameOperations::Change(StringView tag, const std::function<bool(clsLayerObject&)>& apply) {
    const auto layer = session_.EditLayer();
    const auto object = layer ? layer->SelectObject() : nullptr;
    if (!object) return false;
    const auto changed = object->Copy();
    if (!apply(*changed)) return false;
    if (changed->Compare(*object)) return true;
    Transaction change(session_);
    layer->colObject.Replace(layer->SelectIndex, changed);
    if (session_.inSelection.PassedOver == object) session_.inSelection.PassedOver = changed;
    FitFixedKeyFrames(*session_.colEditLayer());
    change.Commit(Kind::KeyFrames, tag);
    return true;
}

}  // namespace tamber

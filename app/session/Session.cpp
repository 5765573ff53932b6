#include "app/session/Session.h"

#include <algorithm>
#include <utility>

#include "canvas/timeline/RowRange.h"
#include "document/edit/ProjectRelease.h"
#include "document/edit/TimelineLength.h"
#include "document/elements/SymbolKinds.h"
#include "document/records/SymbolTimeline.h"
#include "swf/authoring/MovieLimits.h"

namespace tamber {

Session::~Session() {
    ReleaseProject(inProject, inHistories.cUndoRedo);
}

std::shared_ptr<Collection<clsLayer>> Session::colEditLayer() const {
    return EditSymbol() ? TimelineOf(*EditSymbol()) : inProject.colMainLayer;
}

Long Session::editIndex() const {
    return EditSymbol() ? EditSymbol()->Index : EditMain;
}

bool Session::EditsClass() const {
    return EditSymbol() && EditSymbol()->eType() == KindClass;
}

std::shared_ptr<clsLayer> Session::EditLayer() const {
    const auto layers = colEditLayer();
    const Long row = inSelection.Row1;
    return row >= 1 && row <= layers->Count() ? layers->Item(row) : nullptr;
}

std::shared_ptr<clsLayer> Session::FrameLayer() const {
    const auto layer = EditLayer();
    return layer && !IsFolder(*layer) && !EditsClass() ? layer : nullptr;
}

std::shared_ptr<clsLayerObject> Session::SelectedKeyFrame() const {
    const auto layer = EditLayer();
    return layer ? layer->SelectObject() : nullptr;
}

bool Session::IsPassedOver() const {
    return inSelection.PassedOver && SelectedKeyFrame() == inSelection.PassedOver;
}

SymbolRange Session::SelectedSymbols() const {
    if (inSelection.Symbol1 < 1 || inSelection.Symbol2 < 1) return {};
    const auto [first, last] = std::minmax(inSelection.Symbol1, inSelection.Symbol2);
    return {first, std::min(last, colSymbol()->Count())};
}

Long Session::CanvasWidth() const {
    const auto& symbol = EditSymbol();
    return symbol && symbol->eType() == KindSprite ? symbol->PixelWidth() : inProject.MainWidth;
}

Long Session::CanvasHeight() const {
    const auto& symbol = EditSymbol();
    return symbol && symbol->eType() == KindSprite ? symbol->PixelHeight() : inProject.MainHeight;
}

bool Session::HasUnsavedWork() const {
    return blUncountedWork || inHistories.Changed(*colSymbol());
}

bool Session::CanUndo() const {
    const clsUndoRedo* history = inHistories.Find(EditSymbol());
    return history != nullptr && history->CanUndo();
}

bool Session::CanRedo() const {
    const clsUndoRedo* history = inHistories.Find(EditSymbol());
    return history != nullptr && history->CanRedo();
}

void Session::SetLayers(const std::shared_ptr<clsSymbolData>& owner, Long row, Long col) {
    const bool changed = owner != inSelection.Timeline;
    inSelection.Timeline = owner;
    if (owner && (EditsClass() || colEditLayer()->Empty()))
        inSelection.Frame1 = inSelection.Frame2 = 1;
    inSelection.Row1 = inSelection.Row2 = row;
    if (const auto layer = EditLayer(); layer && col != 0)
        layer->SelectIndex = std::clamp(col, 1, std::max(layer->ObjectCount(), 1));
    CloseStep();
    Note(Change::Rows | Change::KeyFrames | Change::Selection);
    if (changed) Note(Change::Context | Change::History);
}

void Session::SelectRows(Long row1, Long row2) {
    const Long rows = std::max(colEditLayer()->Count(), 1);
    inSelection.Row1 = std::clamp(row1, 1, rows);
    inSelection.Row2 = std::clamp(row2, 1, rows);
    CloseStep();
    Note(Change::Selection);
}

void Session::SelectSymbols(Long row1, Long row2) {
    const Long rows = colSymbol()->Count();
    const bool none = rows == 0 || (row1 < 1 && row2 < 1);
    inSelection.Symbol1 = none ? 0 : std::clamp(row1, 1, rows);
    inSelection.Symbol2 = none ? 0 : std::clamp(row2, 1, rows);
    Note(Change::Selection);
}

void Session::SelectFrames(Long frame1, Long frame2) {
    inSelection.Frame1 = std::clamp(frame1, 1, MaxFrames);
    inSelection.Frame2 = std::clamp(frame2, 1, MaxFrames);
    if (const auto layer = EditLayer()) layer->SetSelectIndex(inSelection.Frame1);
    const auto selected = SelectedKeyFrame();
    const bool isThere = selected && selected->CheckFrame(inSelection.Frame1);
    inSelection.PassedOver = isThere ? nullptr : selected;
    CloseStep();
    Note(Change::Selection);
}

void Session::NumberLibrary() {
    NumberSymbols(*colSymbol());
    SelectSymbols(inSelection.Symbol1, inSelection.Symbol2);
    Note(Change::LibraryRows);
    const auto& edited = EditSymbol();
    if (!edited) return;
    const bool isThere = edited->Index >= 1 && edited->Index <= colSymbol()->Count() &&
                         colSymbol()->Item(edited->Index) == edited;
    if (!isThere) SetLayers(nullptr, 1, 0);
}

void Session::LibraryChanged(SessionChange kinds) {
    blUncountedWork = true;
    if (kinds.Has(Change::LibraryRows)) NumberLibrary();
    CloseStep();
    Note(kinds);
}

void Session::AddUndoRedoData(UndoStep type, StringView tag) {
    clsUndoRedo& history = EditHistory();
    clsUndoRedoData data;
    data.inSprite = EditSymbol();
    data.Row = inSelection.Row1;
    if (const auto layer = EditLayer()) data.KeyFrame = layer->SelectIndex;
    if (!tag.empty() && history.Tag == tag) type = UndoStep::Merge;
    const bool losesSaved =
        type == UndoStep::Change && history.CanRedo() && history.TotalHistory < 0;
    Histories::Record(history, std::move(data), *colEditLayer(), type);
    if (losesSaved) blUncountedWork = true;
    history.Tag = tag;
}

void Session::RecordTimeline(const std::shared_ptr<clsSymbolData>& owner, UndoStep type) {
    if (owner == EditSymbol()) {
        AddUndoRedoData(type);
        return;
    }
    clsUndoRedo& history = inHistories.Of(owner);
    clsUndoRedoData data;
    data.inSprite = owner;
    Histories::Record(history, std::move(data),
                      owner ? *TimelineOf(*owner) : *inProject.colMainLayer, type);
    history.Tag.clear();
}

void Session::RestoreEditedTimeline() {
    const LayerSnapshot* recorded = EditHistory().StateOf(EditSymbol());
    if (recorded == nullptr) return;
    const auto layers = colEditLayer();
    layers->Clear();
    const auto restored = RestoreLayers(*recorded);
    layers->Insert(restored->begin(), restored->end(), 1);
}

void Session::TellWatchers() {
    const SessionChange change = std::exchange(noted_, {});
    if (change.Empty()) return;
    for (std::size_t i = 0; i < watchers_.size(); ++i) watchers_[i](change);
}

}  // namespace tamber

#include "document/clsUndoRedo.h"

#include <algorithm>

#include "document/clsPropertyButton.h"
#include "document/clsPropertyClass.h"
#include "document/clsPropertyKoma.h"
#include "document/clsPropertySprite.h"
#include "document/clsPropertyText.h"
#include "document/clsPropertyVector.h"

namespace tamber {

namespace {

bool IsInLibrary(const clsSymbolData& symbol, const Collection<clsSymbolData>& library) {
    return symbol.Index >= 1 && symbol.Index <= library.Count() &&
           library(symbol.Index).get() == &symbol;
}

/// Kinds that stand on layers without a library entry.
bool NeedsLibrary(const clsSymbolData& symbol) {
    return symbol.ID > 0;
}

/// What a symbol's record refers to; null among them for what is not set.
std::vector<std::shared_ptr<clsSymbolData>> ReferencesOf(const clsSymbolData& symbol) {
    if (const auto* drawing = symbol.Property<clsPropertyVector>()) return {drawing->MorphSymbol()};
    if (const auto* text = symbol.Property<clsPropertyText>()) return {text->FitShapeSymbol()};
    if (const auto* button = symbol.Property<clsPropertyButton>())
        return {button->HitTestSymbol(), button->DownSymbol(), button->OverSymbol(),
                button->UpSymbol()};
    std::vector<std::shared_ptr<clsSymbolData>> references;
    if (const auto* koma = symbol.Property<clsPropertyKoma>())
        references.assign(koma->colKomas->begin(), koma->colKomas->end());
    if (const auto* sprite = symbol.Property<clsPropertySprite>())
        for (const auto& layer : *sprite->colLayer) references.push_back(layer->SymbolData());
    return references;
}

/// Gives the timeline of a state to the symbol that it belongs to.
void SetLayersOf(const clsSymbolData& symbol, std::shared_ptr<Collection<clsLayer>> layers) {
    if (auto* sprite = symbol.Property<clsPropertySprite>())
        sprite->colLayer = std::move(layers);
    else if (auto* record = symbol.Property<clsPropertyClass>())
        record->colLayer = std::move(layers);
}

}  // namespace

void ReturnToLibrary(const std::shared_ptr<clsSymbolData>& symbol,
                     Collection<clsSymbolData>& library) {
    std::vector<std::shared_ptr<clsSymbolData>> waiting{symbol};
    while (!waiting.empty()) {
        const std::shared_ptr<clsSymbolData> next = std::move(waiting.back());
        waiting.pop_back();
        if (!next || !NeedsLibrary(*next) || IsInLibrary(*next, library)) continue;
        // Its number is that of its place until the library is numbered again.
        library.Add(next);
        next->Index = library.Count();
        next->ParentFolder(nullptr);
        for (auto& reference : ReferencesOf(*next)) waiting.push_back(std::move(reference));
    }
}

void clsUndoRedo::Init(const clsUndoRedoData& data, const Collection<clsLayer>& layers) {
    position_ = 1;
    TotalHistory = -1;
    states_.clear();
    pending_.reset();
    Change(data, layers, false);
}

/// The newest state of a timeline, with which the next shares what did not change.
const LayerSnapshot& clsUndoRedo::LatestOf(const std::shared_ptr<clsSymbolData>& sprite) const {
    static const LayerSnapshot none;
    for (std::size_t i = position_ - 1; i < states_.size(); ++i)
        if (states_[i].inSprite == sprite) return states_[i].colEditLayer;
    return none;
}

void clsUndoRedo::Complete(clsUndoRedoData& data, const Collection<clsLayer>& layers) const {
    if (data.inSprite == Owner.lock()) data.inSprite.reset();
    data.colEditLayer = TakeLayerSnapshot(layers, LatestOf(data.inSprite));
}

void clsUndoRedo::Change(clsUndoRedoData data, const Collection<clsLayer>& layers, bool merge) {
    Complete(data, layers);
    if (merge && !states_.empty()) {
        data.Kept = std::move(Present().Kept);
        Present() = std::move(data);
        return;
    }
    ++TotalHistory;
    states_.erase(states_.begin(), states_.begin() + static_cast<std::ptrdiff_t>(position_ - 1));
    position_ = 1;
    if (pending_ && pending_->inSprite != data.inSprite) {
        Push(std::move(*pending_));
        pending_.reset();
        ++TotalHistory;
    }
    Push(std::move(data));
    RaiseOnUndoRedo();
}

void clsUndoRedo::Push(clsUndoRedoData data) {
    states_.push_front(std::move(data));
    while (states_.size() > Limit()) states_.pop_back();
}

void clsUndoRedo::SetUndoRedoData(clsUndoRedoData data, const Collection<clsLayer>& layers) {
    Complete(data, layers);
    pending_ = std::move(data);
}

void clsUndoRedo::Keep(std::shared_ptr<clsSymbolData> symbol) {
    if (!states_.empty()) Present().Kept.push_back(std::move(symbol));
}

/// `left` is the state that was shown: a change of another timeline leads to the place of that
/// change.
clsUndoRedo::Restored clsUndoRedo::Restore(Collection<clsSymbolData>& library,
                                           const clsUndoRedoData& left) {
    const clsUndoRedoData& state = Present();
    Restored restored;
    restored.colEditLayer = RestoreLayers(state.colEditLayer);
    restored.inSprite = state.inSprite ? state.inSprite : Owner.lock();
    const clsUndoRedoData& selection = state.inSprite != left.inSprite ? state : left;
    restored.Row = selection.Row;
    restored.KeyFrame = selection.KeyFrame;
    for (const auto& layer : *restored.colEditLayer) ReturnToLibrary(layer->SymbolData(), library);
    if (restored.inSprite) {
        ReturnToLibrary(restored.inSprite, library);
        SetLayersOf(*restored.inSprite, restored.colEditLayer);
    }
    RaiseOnUndoRedo();
    return restored;
}

std::optional<clsUndoRedo::Restored> clsUndoRedo::Undo(Collection<clsSymbolData>& library) {
    if (!CanUndo()) return std::nullopt;
    const clsUndoRedoData& left = Present();
    ++position_;
    --TotalHistory;
    return Restore(library, left);
}

std::optional<clsUndoRedo::Restored> clsUndoRedo::Redo(Collection<clsSymbolData>& library) {
    if (!CanRedo()) return std::nullopt;
    --position_;
    ++TotalHistory;
    return Restore(library, Present());
}

std::optional<clsUndoRedo::Restored> clsUndoRedo::Ondo(Collection<clsSymbolData>& library) {
    if (states_.empty()) return std::nullopt;
    return Restore(library, Present());
}

void clsUndoRedo::MaxHistory(Long steps) {
    maxHistory_ = std::clamp(steps, 0, std::numeric_limits<Long>::max() - 1);
    while (states_.size() > Limit()) states_.pop_back();
    position_ = std::max<std::size_t>(1, std::min(position_, states_.size()));
}

void clsUndoRedo::RaiseOnUndoRedo() const {
    if (OnUndo) OnUndo(CanUndo());
    if (OnRedo) OnRedo(CanRedo());
}

}  // namespace tamber

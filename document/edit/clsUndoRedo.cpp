#include "document/edit/clsUndoRedo.h"

#include <algorithm>

#include "document/edit/SymbolReferences.h"
#include "document/records/SymbolTimeline.h"

namespace tamber {

namespace {

bool IsInLibrary(const clsSymbolData& symbol, const Collection<clsSymbolData>& library) {
    return symbol.Index >= 1 && symbol.Index <= library.Count() &&
           library(symbol.Index).get() == &symbol;
}

/// The others stand on layers without a library entry.
bool NeedsLibrary(const clsSymbolData& symbol) {
    return symbol.ID > 0 || symbol.eType() == KindClass;
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

namespace {

/// Puts layers in the place of a symbol's timeline, and all that they show into the library.
void PutBack(const std::shared_ptr<clsSymbolData>& owner,
             const std::shared_ptr<Collection<clsLayer>>& layers,
             Collection<clsSymbolData>& library) {
    if (owner) SetTimelineOf(*owner, layers);
    for (const auto& layer : *layers) ReturnToLibrary(layer->SymbolData(), library);
    ReturnToLibrary(owner, library);
}

}  // namespace

void clsUndoRedo::Init(const clsUndoRedoData& data, const Collection<clsLayer>& layers) {
    position_ = 1;
    TotalHistory = -1;
    states_.clear();
    pending_.reset();
    Change(data, layers, false);
}

const LayerSnapshot* clsUndoRedo::FindState(const std::shared_ptr<clsSymbolData>& sprite) const {
    for (std::size_t i = position_ - 1; i < states_.size(); ++i)
        if (states_[i].inSprite == sprite) return &states_[i].colEditLayer;
    return nullptr;
}

/// The newest state of a timeline, with which the next shares what did not change.
const LayerSnapshot& clsUndoRedo::LatestOf(const std::shared_ptr<clsSymbolData>& sprite) const {
    static const LayerSnapshot none;
    const LayerSnapshot* found = FindState(sprite);
    return found != nullptr ? *found : none;
}

void clsUndoRedo::ForgetOwner(clsUndoRedoData& data) const {
    if (data.inSprite == Owner.lock()) data.inSprite.reset();
}

void clsUndoRedo::Complete(clsUndoRedoData& data, const Collection<clsLayer>& layers) const {
    ForgetOwner(data);
    data.colEditLayer = TakeLayerSnapshot(layers, LatestOf(data.inSprite));
}

void clsUndoRedo::Change(clsUndoRedoData data, const Collection<clsLayer>& layers, bool merge) {
    Complete(data, layers);
    if (merge && !states_.empty()) {
        data.Kept = std::move(Present().Kept);
        data.Before = std::move(Present().Before);
        Present() = std::move(data);
        return;
    }
    ++TotalHistory;
    DropRedone();
    TakePending(data);
    Push(std::move(data));
    RaiseOnUndoRedo();
}

/// What the dropped states kept, those that stay may show as well.
void clsUndoRedo::DropRedone() {
    for (; position_ > 1; --position_) {
        auto kept = std::move(states_.front().Kept);
        states_.pop_front();
        auto& next = states_.front().Kept;
        next.insert(next.end(), std::make_move_iterator(kept.begin()),
                    std::make_move_iterator(kept.end()));
    }
}

void clsUndoRedo::TakePending(clsUndoRedoData& data) {
    if (!pending_) return;
    if (pending_->inSprite != data.inSprite) {
        Push(std::move(*pending_));
        ++TotalHistory;
    } else {
        data.Before = std::move(pending_->colEditLayer);
    }
    pending_.reset();
}

void clsUndoRedo::Push(clsUndoRedoData data) {
    states_.push_front(std::move(data));
    while (states_.size() > Limit()) states_.pop_back();
}

/// Where the present state is of the same timeline, it is the one to come back to.
void clsUndoRedo::SetUndoRedoData(clsUndoRedoData data, const Collection<clsLayer>& layers) {
    pending_.reset();
    ForgetOwner(data);
    if (!states_.empty() && Present().inSprite == data.inSprite) return;
    Complete(data, layers);
    pending_ = std::move(data);
}

void clsUndoRedo::Keep(std::shared_ptr<const RemovedSymbols> symbols) {
    if (!states_.empty()) Present().Kept.push_back(std::move(symbols));
}

const LayerSnapshot* clsUndoRedo::StateOf(const std::shared_ptr<clsSymbolData>& owner) const {
    const auto stored = owner == Owner.lock() ? nullptr : owner;
    if (pending_ && pending_->inSprite == stored) return &pending_->colEditLayer;
    return FindState(stored);
}

RemovedSymbols clsUndoRedo::Release() {
    if (pending_) states_.push_back(std::move(*pending_));
    RemovedSymbols held;
    const auto hold = [&held](const LayerSnapshot& layers) {
        for (const auto& layer : layers) held.push_back(layer->SymbolData());
    };
    for (const clsUndoRedoData& state : states_) {
        held.push_back(state.inSprite);
        hold(state.colEditLayer);
        if (state.Before) hold(*state.Before);
        for (const auto& kept : state.Kept) held.insert(held.end(), kept->begin(), kept->end());
    }
    states_.clear();
    pending_.reset();
    position_ = 1;
    return held;
}

std::shared_ptr<clsSymbolData> clsUndoRedo::TimelineOwner(const clsUndoRedoData& state) const {
    return state.inSprite ? state.inSprite : Owner.lock();
}

/// `left` is the state that was shown: a change of another timeline leads to the place of that
/// change.
clsUndoRedo::Restored clsUndoRedo::Restore(Collection<clsSymbolData>& library,
                                           const clsUndoRedoData& left) {
    const clsUndoRedoData& state = Present();
    Restored restored;
    restored.colEditLayer = RestoreLayers(state.colEditLayer);
    restored.inSprite = TimelineOwner(state);
    const clsUndoRedoData& selection = state.inSprite != left.inSprite ? state : left;
    restored.Row = selection.Row;
    restored.KeyFrame = selection.KeyFrame;
    PutBack(restored.inSprite, restored.colEditLayer, library);
    // What was put aside may not be the state of its timeline any more.
    pending_.reset();
    RaiseOnUndoRedo();
    return restored;
}

/// Undoes a change in a timeline that the state before it is not of.
void clsUndoRedo::RevertLeft(Restored& restored, const clsUndoRedoData& left,
                             Collection<clsSymbolData>& library) const {
    if (!left.Before) return;
    const auto owner = TimelineOwner(left);
    auto layers = RestoreLayers(*left.Before);
    PutBack(owner, layers, library);
    if (!owner) restored.colMainLayer = std::move(layers);
}

std::optional<clsUndoRedo::Restored> clsUndoRedo::Undo(Collection<clsSymbolData>& library) {
    if (!CanUndo()) return std::nullopt;
    const clsUndoRedoData& left = Present();
    ++position_;
    --TotalHistory;
    Restored restored = Restore(library, left);
    RevertLeft(restored, left, library);
    return restored;
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

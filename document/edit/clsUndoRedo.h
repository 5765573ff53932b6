#pragma once

#include <deque>
#include <functional>
#include <limits>
#include <optional>

#include "document/edit/LayerSnapshot.h"
#include "document/symbols/clsSymbolData.h"

namespace tamber {

/// Symbols that left a library together.
using RemovedSymbols = std::vector<std::shared_ptr<clsSymbolData>>;

/// One state of one timeline.
struct clsUndoRedoData {
    LayerSnapshot colEditLayer;
    /// The timeline before the change, where the state before this one is of another.
    std::optional<LayerSnapshot> Before;
    /// The sprite or class whose timeline it is; null for the main timeline.
    std::shared_ptr<clsSymbolData> inSprite;
    /// The selected row, and the key frame selected in it.
    Long Row = 1;
    Long KeyFrame = 1;
    /// Symbols that left the library up to this state, kept for those before it.
    std::vector<std::shared_ptr<const RemovedSymbols>> Kept;
};

/// The history of a timeline, or of all: states, the newest first, and which of them is shown.
class clsUndoRedo {
public:
    /// What an undo or redo leads to.
    struct Restored {
        std::shared_ptr<Collection<clsLayer>> colEditLayer;
        /// The main timeline, where an undone change was in it and leads back to another.
        std::shared_ptr<Collection<clsLayer>> colMainLayer;
        std::shared_ptr<clsSymbolData> inSprite;
        Long Row = 1;
        Long KeyFrame = 1;
    };

    /// The symbol whose record holds this history, in place of which its states are stored without
    /// one: they would keep it for ever. Empty for the controller's.
    std::weak_ptr<clsSymbolData> Owner;
    /// Steps since the last save, less those undone; 0 for a project that was not changed.
    Long TotalHistory = 0;
    /// Tag of the last step, by which the next may join it.
    String Tag;
    /// Told whether a step can be undone, or redone, when that may have changed.
    std::function<void(bool enabled)> OnUndo;
    std::function<void(bool enabled)> OnRedo;

    /// Begins anew with a state.
    void Init(const clsUndoRedoData& data, const Collection<clsLayer>& layers);
    /// Records the state of a timeline, `data` being the rest of it. With `merge` it takes the
    /// place of the present state and is no step of its own.
    void Change(clsUndoRedoData data, const Collection<clsLayer>& layers, bool merge);
    /// Puts aside the state before a switch to another timeline, or before a change of one that is
    /// not shown. It is recorded once a change follows elsewhere, and serves to undo one that
    /// follows in its own timeline.
    void SetUndoRedoData(clsUndoRedoData data, const Collection<clsLayer>& layers);
    /// Symbols leave the library: the states that may show them keep them.
    void Keep(std::shared_ptr<const RemovedSymbols> symbols);

    /// The state of a timeline as it was recorded last, null when it was not; an owner of null
    /// stands for the main timeline.
    const LayerSnapshot* StateOf(const std::shared_ptr<clsSymbolData>& owner) const;

    /// Forgets all states and gives the symbols that they held; null among them.
    RemovedSymbols Release();

    bool CanUndo() const { return position_ < states_.size(); }
    bool CanRedo() const { return position_ >= 2; }
    /// The state before the present one; nothing at the history's end. Symbols that its layers show
    /// and that left the library come back at the library's end.
    std::optional<Restored> Undo(Collection<clsSymbolData>& library);
    /// The state behind the present one.
    std::optional<Restored> Redo(Collection<clsSymbolData>& library);
    /// The present state again.
    std::optional<Restored> Ondo(Collection<clsSymbolData>& library);

    /// Steps that can be undone at most. States beyond go at once.
    Long MaxHistory() const { return maxHistory_; }
    void MaxHistory(Long steps);
    Long Count() const { return static_cast<Long>(states_.size()); }
    /// Tells both events.
    void RaiseOnUndoRedo() const;

private:
    std::size_t Limit() const { return static_cast<std::size_t>(maxHistory_) + 1; }
    const LayerSnapshot* FindState(const std::shared_ptr<clsSymbolData>& sprite) const;
    const LayerSnapshot& LatestOf(const std::shared_ptr<clsSymbolData>& sprite) const;
    Restored Restore(Collection<clsSymbolData>& library, const clsUndoRedoData& left);
    void Push(clsUndoRedoData data);
    void ForgetOwner(clsUndoRedoData& data) const;
    void Complete(clsUndoRedoData& data, const Collection<clsLayer>& layers) const;
    void DropRedone();
    void TakePending(clsUndoRedoData& data);
    void RevertLeft(Restored& restored, const clsUndoRedoData& left,
                    Collection<clsSymbolData>& library) const;
    std::shared_ptr<clsSymbolData> TimelineOwner(const clsUndoRedoData& state) const;
    clsUndoRedoData& Present() { return states_[position_ - 1]; }

    std::deque<clsUndoRedoData> states_;
    /// From 1, the newest.
    std::size_t position_ = 1;
    Long maxHistory_ = std::numeric_limits<Long>::max() - 1;
    std::optional<clsUndoRedoData> pending_;
};

/// Puts a symbol, and those that it refers to, back at the end of a library that they left, outside
/// all folders.
void ReturnToLibrary(const std::shared_ptr<clsSymbolData>& symbol,
                     Collection<clsSymbolData>& library);

}  // namespace tamber

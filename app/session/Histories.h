#pragma once

#include <functional>
#include <memory>

#include "document/Project.h"
#include "document/edit/SymbolReferences.h"
#include "document/edit/clsUndoRedo.h"

namespace tamber {

/// How a state enters a history.
enum class UndoStep {
    Init = 0,
    Change = 1,
    /// Put aside until a change follows in another timeline.
    Pending = 2,
    /// In place of the last one.
    Merge = 3,
};

/// The histories of a project: one for all its timelines, or one for each. Which of the two holds
/// is decided when a project is put in place, and stays.
class Histories {
public:
    /// History of the main timeline, or of all timelines.
    clsUndoRedo cUndoRedo;

    /// Begins for a project just put in place. `steps`: those kept in each history.
    void Begin(bool together, Long steps);
    /// One history serves all timelines.
    bool Together() const { return together_; }
    /// The history that edits of a timeline go into; `owner` is null for the main one. One that
    /// is not there yet is begun with the timeline's state.
    clsUndoRedo& Of(const std::shared_ptr<clsSymbolData>& owner);
    /// The same, null where none is begun.
    const clsUndoRedo* Find(const std::shared_ptr<clsSymbolData>& owner) const;
    /// Records a timeline in a history.
    static void Record(clsUndoRedo& history, clsUndoRedoData data,
                       const Collection<clsLayer>& layers, UndoStep type);

    /// Steps were recorded since the last save.
    bool Changed(const Collection<clsSymbolData>& library) const;
    /// Makes the present state the saved one. No edit joins the step that led to it.
    void CountFromHere(const Collection<clsSymbolData>& library);
    /// Symbols leave the library. References of theirs do not own, so that the histories must.
    void Keep(const Collection<clsSymbolData>& library, const SymbolList& leaving);

private:
    /// Hands over each history but the main one.
    void ForEachOwn(const Collection<clsSymbolData>& library,
                    const std::function<void(clsSymbolData&, clsUndoRedo&)>& visit) const;

    bool together_ = true;
    Long steps_ = 0;
};

}  // namespace tamber

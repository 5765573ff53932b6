#pragma once

#include <functional>

#include "app/session/Session.h"
#include "canvas/timeline/RowRange.h"

namespace tamber {

/// What is done to the rows of the edited timeline.
class RowOperations {
public:
    explicit RowOperations(Session& session) : session_(session) {}

    void Copy();
    void Cut();
    /// Pastes before the selected row.
    void Paste();
    void Remove();
    /// Places the selected rows of the library at a row, with their key frames at the frame cursor.
    void AddSymbols(Long row, bool inFolder, bool after);
    /// New rows before the selected one. A class takes actions alone.
    void AddLabel();
    void AddAction();
    void AddFolder(StringView name);
    /// Puts rows into the edited timeline, but for those whose symbol would show itself, and
    /// selects them.
    void Insert(const RowPlace& place, Collection<clsLayer> rows);
    /// Changes the selected row, on a copy whose values it takes when `apply` goes well. False when
    /// there is none or `apply` refuses.
    bool Change(StringView tag, const std::function<bool(clsLayer&)>& apply);
    /// Lets the selected row show another symbol of the library. False when it cannot; a sprite
    /// that would show itself is told.
    bool ChangeSymbol(Long index);
    /// The name is refused, with a message, when scripts could not use it.
    bool ChangeInstanceName(StringView name);

private:
    void AddOwn(const std::shared_ptr<clsLayer>& layer);
    bool InLibrary(const clsSymbolData& symbol) const;
    /// A sprite that would show itself in the edited timeline, which is told.
    bool ShowsItself(const clsSymbolData& symbol) const;

    Session& session_;
};

/// Takes the rows out that a sprite cannot have, since their symbols show it; told.
void RemoveLoops(Collection<clsLayer>& layers, const clsSymbolData& owner);

}  // namespace tamber

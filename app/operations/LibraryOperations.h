#pragma once

#include <functional>
#include <vector>

#include "app/session/Session.h"
#include "document/edit/SymbolIdEdit.h"
#include "document/edit/SymbolSort.h"

namespace tamber {

/// What is done to the rows of the library.
class LibraryOperations {
public:
    /// Behind the last row of the library.
    static constexpr Long AtEnd = -1;
    /// Lets a person give a symbol its properties. False when they would rather not.
    using EditSymbolData = std::function<bool(clsSymbolData& symbol)>;
    /// Lets a person choose new numbers. False when they would rather not.
    using ChooseIds = std::function<bool(SymbolIdEdit& edit)>;

    explicit LibraryOperations(Session& session) : session_(session) {}

    /// Puts a symbol into the library, in the place of the row `index`, or at its end.
    void Add(const std::shared_ptr<clsSymbolData>& symbol, Long index = AtEnd);
    /// Adds a new symbol of a kind before the selected row, or at the library's end when none is
    /// selected. False when `edit` refuses. A number that is taken is told, and a free one given.
    bool AddNew(Long kind, const EditSymbolData& edit);
    void AddFolder(StringView name);
    /// Makes symbols of files. False when one of them could not be added, which was told; the
    /// others are. None is when the user would rather not wait.
    bool AddFiles(const std::vector<String>& paths);
    /// Takes a row out, a folder with all that is in it; with `withUses` the layers that show what
    /// goes out are removed too, a step for each timeline.
    void Remove(Long index, bool withUses);
    /// Removes the layers that show a symbol of this number; the selected rows follow. False when
    /// there is none. No step is recorded.
    bool RemoveLayersOf(Collection<clsLayer>& layers, Long id);
    /// Removes the selected rows, with the layers that show them and with what cannot stay without
    /// them; other references to them are cleared.
    void RemoveSelected();
    /// Numbers the selected rows. False when nothing was changed.
    bool EditIds(const ChooseIds& choose);
    void Sort(SymbolOrder order, bool descending);
    void SortSelected(SymbolOrder order, bool descending);
    void SortByFolder();
    /// Moves rows, folders whole. False when the target is one of them.
    bool Move(Long first, Long last, Long target, bool inFolder, bool after);
    /// Reads the files of the selected rows again. False when one cannot be read, which is told;
    /// its symbol stays as it was.
    bool ReadAgain();
    /// Changes properties of the first selected symbol, whose file is read again. False when none
    /// is selected, when `edit` refuses, or for a file that cannot be read, which is told; the
    /// symbol then stays as it was.
    bool Change(const EditSymbolData& edit);
    /// Numbers symbols that an undo brought back, from the row `first` on.
    void Returned(Long first);

private:
    /// A symbol of a kind with a free number and a default name where the kind has one.
    std::shared_ptr<clsSymbolData> NewSymbol(Long kind) const;
    bool TakeProperties(clsSymbolData& symbol) const;
    void Replace(std::shared_ptr<Collection<clsSymbolData>> library);
    void RemoveWithUses(const SymbolList& leaving);
    void RemoveUses(const std::shared_ptr<clsSymbolData>& owner, Long id);
    /// What a removal of symbols and their layers ends with.
    void UsesRemoved();

    Session& session_;
};

}  // namespace tamber

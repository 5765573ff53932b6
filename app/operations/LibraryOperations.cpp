#include "app/operations/LibraryOperations.h"

#include <algorithm>
#include <utility>

#include "app/operations/SymbolFromFile.h"
#include "app/tasks/Task.h"
#include "document/SymbolFiles.h"
#include "document/edit/ClassNames.h"
#include "document/edit/SymbolUses.h"
#include "document/edit/TimelineLength.h"
#include "document/records/SymbolContents.h"
#include "document/records/SymbolTimeline.h"
#include "document/records/clsPropertyButton.h"
#include "document/records/clsPropertyClass.h"
#include "document/records/clsPropertyKoma.h"
#include "document/records/clsPropertyLinkSymbol.h"
#include "document/records/clsPropertyMovieEmp.h"
#include "document/records/clsPropertySprite.h"
#include "document/records/clsPropertySymbolFolder.h"
#include "document/records/clsPropertyText.h"
#include "platform/UserInterface.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

namespace {

using Kind = tamber::Change;

void TellRepeatedIds() {
    ShowMessage(u"重複しているIDを、\r\n空いているIDへ変更します。");
}

/// Where a row is once others, given from the first on, are gone.
Long RowWithout(Long row, const std::vector<Long>& gone) {
    return row - static_cast<Long>(std::lower_bound(gone.begin(), gone.end(), row) - gone.begin());
}

/// Takes the name that a class was given. False, with the reason told, when it cannot have it.
bool TakeClassName(const Collection<clsSymbolData>& library, const clsSymbolData& symbol) {
    String& name = symbol.Property<clsPropertyClass>()->className;
    name = Trim(name);
    const String fault = ClassNameFault(name, OtherClassNames(library, symbol));
    if (!fault.empty()) ShowMessage(fault, ProgramTitle, MessageIcon::Warning);
    return fault.empty();
}

std::shared_ptr<clsSymbolData> CopyWithRecord(const clsSymbolData& symbol) {
    auto copy = std::make_shared<clsSymbolData>(symbol);
    if (symbol.PropertyData()) copy->PropertyData(symbol.PropertyData()->Copy());
    return copy;
}

/// What `read` makes of each item, whose file's path `path` tells; nothing when the user would
/// rather not wait for it.
template <class Item, class Path, class Read>
std::optional<SymbolList> ReadEach(const std::vector<Item>& items, Path path, Read read) {
    return RunTask([&] {
        SymbolList symbols;
        const auto count = static_cast<Long>(items.size());
        for (const Item& item : items) {
            const auto done = static_cast<Long>(symbols.size());
            CurrentUserInterface().Progress(GetFileName(path(item)), done, count);
            symbols.push_back(read(item));
        }
        CurrentUserInterface().Progress(u"", count, count);
        return symbols;
    });
}

/// Copies of symbols, with what their files hold now; null for one whose file cannot be read, which
/// is told.
std::optional<SymbolList> ReadFiles(const SymbolList& symbols, const ProjectAssets& assets) {
    return ReadEach(
        symbols, [](const auto& symbol) { return symbol->FilePathName; },
        [&assets](const auto& symbol) {
            const auto copy = CopyWithRecord(*symbol);
            return ReadSymbolFile(*copy, assets) ? copy : nullptr;
        });
}

/// Works out again what comes from other symbols' files.
void FollowReload(const Collection<clsSymbolData>& library, const SymbolSet& read,
                  const ProjectAssets& assets) {
    SetKomaSizes(library);
    for (const auto& symbol : library) {
        const auto* text = symbol->Property<clsPropertyText>();
        if (text != nullptr && read.contains(text->FitShapeSymbol().get()))
            assets.SetTextSize(*symbol);
    }
}

}  // namespace

void LibraryOperations::Add(const std::shared_ptr<clsSymbolData>& symbol, Long index) {
    Collection<clsSymbolData>& library = *session_.colSymbol();
    const Long end = library.Count() + 1;
    const Long row = index < 1 ? end : std::min(index, end);
    Long newIndex = 0;
    AddSymbolData(library, row, symbol, false, false, newIndex);
    session_.blUncountedWork = true;
    session_.Note(Kind::LibraryRows);
    if (newIndex == end) {
        // Rows before the last one keep their numbers, so that many can be added at once.
        symbol->Index = newIndex;
        return;
    }
    Selection& selected = session_.inSelection;
    for (Long* shifted : {&selected.Symbol1, &selected.Symbol2})
        if (*shifted >= newIndex) ++*shifted;
    session_.NumberLibrary();
}

std::shared_ptr<clsSymbolData> LibraryOperations::NewSymbol(Long kind) const {
    const Collection<clsSymbolData>& library = *session_.colSymbol();
    auto symbol = std::make_shared<clsSymbolData>(kind);
    if (HasNumber(*symbol)) symbol->ID = GetSymbolID(library);
    const auto name = [&](StringView word) { return GetSymbolDefName(library, kind, word); };
    if (auto* sprite = symbol->Property<clsPropertySprite>()) {
        sprite->SpriteName = name(u"スプライト");
        sprite->Width = session_.CanvasWidth();
        sprite->height = session_.CanvasHeight();
    } else if (auto* button = symbol->Property<clsPropertyButton>()) {
        button->ButtonName = name(u"ボタン");
    } else if (auto* koma = symbol->Property<clsPropertyKoma>()) {
        koma->KomaName = name(u"コマ動画");
    } else if (auto* movie = symbol->Property<clsPropertyMovieEmp>()) {
        movie->MovieName = name(u"空動画");
    }
    return symbol;
}

/// Fits what a person gave to the rules of the kind. False, with the reason told, when it cannot
/// be had.
bool LibraryOperations::TakeProperties(clsSymbolData& symbol) const {
    if (symbol.eType() == KindClass) return TakeClassName(*session_.colSymbol(), symbol);
    if (auto* link = symbol.Property<clsPropertyLinkSymbol>()) {
        const bool isBare = !link->SymbolName.starts_with(ClassExportPrefix);
        if (link->eTypeEx() == KindClass && isBare) link->SymbolName.insert(0, ClassExportPrefix);
    }
    return true;
}

bool LibraryOperations::AddNew(Long kind, const EditSymbolData& edit) {
    const auto symbol = NewSymbol(kind);
    if (!edit(*symbol) || !TakeProperties(*symbol)) return false;
    const Collection<clsSymbolData>& library = *session_.colSymbol();
    if (HasNumber(*symbol) && (symbol->ID < 1 || !CheckID(library, symbol->ID, symbol->Index))) {
        ShowMessage(u"IDが重複しています。\r\n空いているIDへ変更します。");
        symbol->ID = GetSymbolID(library);
    }
    Add(symbol, session_.inSelection.Symbol1);
    return true;
}

void LibraryOperations::AddFolder(StringView name) {
    const auto folder = NewSymbol(KindSymbolFolder);
    folder->Property<clsPropertySymbolFolder>()->FolderName = name;
    Add(folder, session_.inSelection.Symbol1);
}

bool LibraryOperations::AddFiles(const std::vector<String>& paths) {
    const auto read = ReadEach(
        paths, [](const String& path) { return path; },
        [this](const String& path) {
            return SymbolFromFile(AbsolutePath(path), session_.Assets());
        });
    if (!read) return false;
    bool all = true;
    for (const auto& symbol : *read) {
        all = all && symbol;
        if (!symbol) continue;
        symbol->ID = GetSymbolID(*session_.colSymbol());
        Add(symbol, session_.inSelection.Symbol1);
    }
    return all;
}

bool LibraryOperations::RemoveLayersOf(Collection<clsLayer>& layers, Long id) {
    const std::vector<Long> gone = RemoveLayersOfSymbol(layers, id);
    Selection& selected = session_.inSelection;
    if (&layers == session_.colEditLayer().get())
        for (Long* row : {&selected.Row1, &selected.Row2})
            *row = std::clamp(RowWithout(*row, gone), 1, std::max(layers.Count(), 1));
    if (!gone.empty()) session_.Note(Kind::Rows);
    return !gone.empty();
}

void LibraryOperations::RemoveUses(const std::shared_ptr<clsSymbolData>& owner, Long id) {
    Collection<clsLayer>& layers = owner ? *TimelineOf(*owner) : *session_.inProject.colMainLayer;
    session_.RecordTimeline(owner, UndoStep::Pending);
    if (!RemoveLayersOf(layers, id)) return;
    FitFixedKeyFrames(layers);
    session_.RecordTimeline(owner, UndoStep::Change);
}

void LibraryOperations::RemoveWithUses(const SymbolList& leaving) {
    const SymbolUses uses(session_.inProject, leaving);
    for (const auto& symbol : leaving)
        for (const auto& owner : uses.Of(symbol->ID)) RemoveUses(owner, symbol->ID);
    session_.inHistories.Keep(*session_.colSymbol(), leaving);
    TakeOut(*session_.colSymbol(), leaving);
}

void LibraryOperations::UsesRemoved() {
    session_.LibraryChanged(Kind::LibraryRows | Kind::Rows | Kind::KeyFrames);
    // The next change of the edited timeline may follow on a step of another.
    if (session_.inHistories.Together()) session_.AddUndoRedoData(UndoStep::Pending);
}

void LibraryOperations::Remove(Long index, bool withUses) {
    Collection<clsSymbolData>& library = *session_.colSymbol();
    const SymbolList leaving = SymbolsOf(library, WholeFolders(library, {index, index}));
    if (!withUses) {
        TakeOut(library, leaving);
        session_.LibraryChanged();
        return;
    }
    RemoveWithUses(leaving);
    UsesRemoved();
}

void LibraryOperations::RemoveSelected() {
    Collection<clsSymbolData>& library = *session_.colSymbol();
    const SymbolRange range = session_.SelectedSymbols();
    if (range.Count() < 1) return;
    SymbolList leaving = SymbolsOf(library, WholeFolders(library, range));
    SymbolList fallen = FallenWith(library, leaving);
    std::sort(fallen.begin(), fallen.end(),
              [](const auto& a, const auto& b) { return a->Index < b->Index; });
    leaving.insert(leaving.end(), fallen.begin(), fallen.end());
    RemoveWithUses(leaving);
    SymbolSet gone;
    for (const auto& symbol : leaving) gone.insert(symbol.get());
    for (const auto& text : ClearReferences(library, gone)) session_.Assets().SetTextSize(*text);
    session_.SelectSymbols(0, 0);
    UsesRemoved();
}

void LibraryOperations::Returned(Long first) {
    Collection<clsSymbolData>& library = *session_.colSymbol();
    SymbolIds ids(library);
    SeparateIds(library, ids, first, library.Count(), TellRepeatedIds);
    session_.blUncountedWork = true;
    session_.NumberLibrary();
}

bool LibraryOperations::EditIds(const ChooseIds& choose) {
    const SymbolRange range = session_.SelectedSymbols();
    SymbolIdEdit edit(*session_.colSymbol(), range.First, range.Last);
    if (edit.Count() == 0 || !choose(edit) || !edit.IsAllowed()) return false;
    edit.Apply(TellRepeatedIds);
    session_.LibraryChanged();
    return true;
}

void LibraryOperations::Replace(std::shared_ptr<Collection<clsSymbolData>> library) {
    session_.inProject.colSymbol = std::move(library);
    session_.LibraryChanged();
}

void LibraryOperations::Sort(SymbolOrder order, bool descending) {
    const Collection<clsSymbolData>& library = *session_.colSymbol();
    Replace(SortSymbols(library, order, descending, 1, library.Count()));
}

void LibraryOperations::SortSelected(SymbolOrder order, bool descending) {
    const SymbolRange range = session_.SelectedSymbols();
    if (range.Count() > 1)
        Replace(SortSymbols(*session_.colSymbol(), order, descending, range.First, range.Last));
}

void LibraryOperations::SortByFolder() {
    Replace(SortFolders(*session_.colSymbol()));
}

bool LibraryOperations::Move(Long first, Long last, Long target, bool inFolder, bool after) {
    Collection<clsSymbolData>& library = *session_.colSymbol();
    if (first < 1 || last < first || last > library.Count() || target < 1) return false;
    SymbolRange rows{first, last};
    if (!MoveSymbols(library, rows, target, inFolder, after)) return false;
    session_.inSelection.Symbol1 = rows.First;
    session_.inSelection.Symbol2 = rows.Last;
    session_.LibraryChanged();
    return true;
}

bool LibraryOperations::ReadAgain() {
    SymbolList symbols = SymbolsOf(*session_.colSymbol(), session_.SelectedSymbols());
    std::erase_if(symbols, [](const auto& symbol) { return symbol->FilePathName.empty(); });
    const auto read = ReadFiles(symbols, session_.Assets());
    if (!read) return false;
    SymbolSet changed;
    for (std::size_t i = 0; i < symbols.size(); ++i) {
        if (!(*read)[i]) continue;
        symbols[i]->PropertyData((*read)[i]->PropertyData());
        changed.insert(symbols[i].get());
    }
    FollowReload(*session_.colSymbol(), changed, session_.Assets());
    session_.CloseStep();
    session_.Note(Kind::Symbol);
    return changed.size() == symbols.size();
}

bool LibraryOperations::Change(const EditSymbolData& edit) {
    const SymbolRange range = session_.SelectedSymbols();
    if (range.Count() < 1) return false;
    const auto& symbol = (*session_.colSymbol())(range.First);
    const auto changed = CopyWithRecord(*symbol);
    if (!edit(*changed)) return false;
    if (symbol->eType() == KindText) session_.Assets().SetTextSize(*changed);
    if (!changed->FilePathName.empty()) {
        const auto read = ReadFiles({changed}, session_.Assets());
        if (!read || !read->front()) return false;
        changed->PropertyData(read->front()->PropertyData());
    }
    *symbol = std::move(*changed);
    FollowReload(*session_.colSymbol(), {symbol.get()}, session_.Assets());
    session_.CloseStep();
    session_.LibraryChanged(Kind::LibraryRows | Kind::Symbol);
    return true;
}

}  // namespace tamber

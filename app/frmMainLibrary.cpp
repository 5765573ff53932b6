#include <algorithm>
#include <numeric>

#include "app/AssetReader.h"
#include "app/SymbolFromFile.h"
#include "app/frmMain.h"
#include "app/mdlPrivateProfile.h"
#include "document/SymbolFiles.h"
#include "document/edit/ClassNames.h"
#include "document/edit/SymbolUses.h"
#include "document/edit/TimelineLength.h"
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

// The commands on the rows of the library.

namespace tamber {

namespace {

constexpr StringView FolderWord = u"フォルダ";

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

/// Works out again what comes from other symbols' files.
void FollowReload(const Collection<clsSymbolData>& library, const SymbolSet& read,
                  const ProjectAssets& assets) {
    for (const auto& symbol : library) {
        if (auto* koma = symbol->Property<clsPropertyKoma>()) koma->SetSize();
        const auto* text = symbol->Property<clsPropertyText>();
        if (text != nullptr && read.contains(text->FitShapeSymbol().get()))
            assets.SetTextSize(*symbol);
    }
}

}  // namespace

void frmMain::SelectSymbols(Long row1, Long row2) {
    const Long rows = colSymbol()->Count();
    const bool none = rows == 0 || (row1 < 1 && row2 < 1);
    SelSymbol1 = none ? 0 : std::clamp(row1, 1, rows);
    SelSymbol2 = none ? 0 : std::clamp(row2, 1, rows);
}

SymbolRange frmMain::SelectedSymbols() const {
    if (SelSymbol1 < 1 || SelSymbol2 < 1) return {};
    const auto [first, last] = std::minmax(SelSymbol1, SelSymbol2);
    return {first, std::min(last, colSymbol()->Count())};
}

Long frmMain::GetSymbolID() const {
    return tamber::GetSymbolID(*colSymbol());
}

bool frmMain::CheckID(Long id, Long index) const {
    return tamber::CheckID(*colSymbol(), id, index);
}

String frmMain::GetSymbolDefName(Long kind, StringView prefix) const {
    return tamber::GetSymbolDefName(*colSymbol(), kind, prefix);
}

void frmMain::RefreshFgrdSymbol() {
    Long row = 0;
    Long edited = 0;
    for (const auto& symbol : *colSymbol()) {
        ++row;
        if (editIndex > 0 && symbol->Index == editIndex) edited = row;
    }
    NumberSymbols(*colSymbol());
    SelectSymbols(SelSymbol1, SelSymbol2);
    view_->RefreshFgrdSymbol();
    if (edited > 0)
        editIndex = edited;
    else if (editIndex > 0)
        SetLayers(EditMain, 1, 0);
}

void frmMain::LibraryChanged() {
    uncountedWork_ = true;
    RefreshFgrdSymbol();
    view_->DispDataTbl();
    ShowEditFrame();
}

void frmMain::AddSymbol(const std::shared_ptr<clsSymbolData>& symbol, Long index) {
    const Long end = colSymbol()->Count() + 1;
    const Long row = index < 1 ? end : std::min(index, end);
    Long newIndex = 0;
    AddSymbolData(*colSymbol(), row, symbol, false, false, newIndex);
    uncountedWork_ = true;
    if (newIndex == end) {
        symbol->Index = newIndex;
        view_->AppendSymbol(*symbol);
        return;
    }
    for (Long* selected : {&SelSymbol1, &SelSymbol2})
        if (*selected >= newIndex) ++*selected;
    RefreshFgrdSymbol();
}

std::shared_ptr<clsSymbolData> frmMain::NewSymbol(Long kind, StringView word) const {
    auto symbol = std::make_shared<clsSymbolData>(kind);
    if (HasNumber(*symbol)) symbol->ID = GetSymbolID();
    const String name = word.empty() ? String() : GetSymbolDefName(kind, word);
    if (auto* sprite = symbol->Property<clsPropertySprite>()) {
        sprite->SpriteName = name;
        sprite->Width = CanvasWidth();
        sprite->height = CanvasHeight();
    } else if (auto* button = symbol->Property<clsPropertyButton>()) {
        button->ButtonName = name;
    } else if (auto* koma = symbol->Property<clsPropertyKoma>()) {
        koma->KomaName = name;
    } else if (auto* movie = symbol->Property<clsPropertyMovieEmp>()) {
        movie->MovieName = name;
    }
    return symbol;
}

bool frmMain::AddNewSymbol(const std::shared_ptr<clsSymbolData>& symbol,
                           const EditSymbolData& edit) {
    if (!edit(*symbol)) return false;
    if (HasNumber(*symbol) && (symbol->ID < 1 || !CheckID(symbol->ID, symbol->Index))) {
        ShowMessage(u"IDが重複しています。\r\n空いているIDへ変更します。");
        symbol->ID = GetSymbolID();
    }
    AddSymbol(symbol, SelSymbol1);
    return true;
}

bool frmMain::mnuAddSymbolItem_Sprite(const EditSymbolData& edit) {
    return AddNewSymbol(NewSymbol(KindSprite, u"スプライト"), edit);
}

bool frmMain::mnuAddSymbolItem_Button(const EditSymbolData& edit) {
    return AddNewSymbol(NewSymbol(KindButton, u"ボタン"), edit);
}

bool frmMain::mnuAddSymbolItem_Koma(const EditSymbolData& edit) {
    return AddNewSymbol(NewSymbol(KindKoma, u"コマ動画"), edit);
}

bool frmMain::mnuAddSymbolItem_MovieEmp(const EditSymbolData& edit) {
    return AddNewSymbol(NewSymbol(KindMovieEmp, u"空動画"), edit);
}

bool frmMain::mnuAddSymbolItem_Link(const EditSymbolData& edit) {
    return AddNewSymbol(NewSymbol(KindLink, u""), [&](clsSymbolData& symbol) {
        if (!edit(symbol)) return false;
        auto& link = *symbol.Property<clsPropertyLinkSymbol>();
        const bool isBare = !link.SymbolName.starts_with(ClassExportPrefix);
        if (link.eTypeEx() == KindClass && isBare) link.SymbolName.insert(0, ClassExportPrefix);
        return true;
    });
}

bool frmMain::mnuAddSymbolItem_Class(const EditSymbolData& edit) {
    return AddNewSymbol(NewSymbol(KindClass, u""), [&](clsSymbolData& symbol) {
        return edit(symbol) && TakeClassName(*colSymbol(), symbol);
    });
}

bool frmMain::mnuAddSymbolItem_Folder() {
    const String name =
        CurrentUserInterface().InputBox(u"フォルダ名を入力して下さい。", u"フォルダ名入力",
                                        GetSymbolDefName(KindSymbolFolder, FolderWord));
    return !name.empty() && mnuAddSymbolItem_Folder(name);
}

bool frmMain::mnuAddSymbolItem_Folder(StringView name) {
    const auto folder = NewSymbol(KindSymbolFolder, u"");
    folder->Property<clsPropertySymbolFolder>()->FolderName = name;
    AddSymbol(folder, SelSymbol1);
    return true;
}

bool frmMain::mnuAddSymbolItem_File() {
    FileDialog dialog;
    dialog.Title = u"ファイル追加";
    dialog.Filters = SymbolFileFilters();
    const String path = CurrentUserInterface().OpenFileDialog(dialog);
    return !path.empty() && AddSymbolItem_File(path);
}

bool frmMain::mnuAddSymbolItem_File(const std::vector<String>& paths) {
    return std::accumulate(paths.begin(), paths.end(), true, [this](bool all, const String& path) {
        return AddSymbolItem_File(path) && all;
    });
}

bool frmMain::AddSymbolItem_File(StringView path) {
    const auto symbol = SymbolFromFile(AbsolutePath(path), AssetReader());
    if (!symbol) return false;
    symbol->ID = GetSymbolID();
    AddSymbol(symbol, SelSymbol1);
    return true;
}

bool frmMain::RemoveLayersOfSymbol(Collection<clsLayer>& layers, Long id) {
    const std::vector<Long> gone = tamber::RemoveLayersOfSymbol(layers, id);
    if (&layers == editLayers_.get())
        for (Long* row : {&SelIndex1, &SelIndex2})
            *row = std::clamp(RowWithout(*row, gone), 1, std::max(layers.Count(), 1));
    return !gone.empty();
}

void frmMain::RecordTimeline(const std::shared_ptr<clsSymbolData>& owner, UndoStep type) {
    if (owner == EditSymbol())
        AddUndoRedoData(type);
    else if (!owner)
        AddUndoRedoData2(cUndoRedo, *colMainLayer(), nullptr, type);
    else if (mdlPrivateProfile::UndoRedoType())
        AddUndoRedoData2(cUndoRedo, *TimelineOf(*owner), owner, type);
    else
        AddUndoRedoData2(*OwnHistory(*owner), *TimelineOf(*owner), owner, type);
}

void frmMain::RemoveUses(const std::shared_ptr<clsSymbolData>& owner, Long id) {
    Collection<clsLayer>& layers = owner ? *TimelineOf(*owner) : *colMainLayer();
    RecordTimeline(owner, UndoStep::Pending);
    if (!RemoveLayersOfSymbol(layers, id)) return;
    FitFixedKeyFrames(layers);
    RecordTimeline(owner, UndoStep::Change);
}

/// References of symbols that leave do not own, so that the histories must.
void frmMain::KeepInHistories(const SymbolList& leaving) {
    const auto kept = std::make_shared<const RemovedSymbols>(leaving);
    cUndoRedo.Keep(kept);
    if (mdlPrivateProfile::UndoRedoType()) return;
    SymbolSet gone;
    for (const auto& symbol : leaving) gone.insert(symbol.get());
    for (const auto& symbol : *colSymbol()) {
        const auto* history = OwnHistory(*symbol);
        if (history != nullptr && *history && !gone.contains(symbol.get())) (*history)->Keep(kept);
    }
}

void frmMain::RemoveWithUses(const SymbolList& leaving) {
    const SymbolUses uses(inProject, leaving);
    for (const auto& symbol : leaving)
        for (const auto& owner : uses.Of(symbol->ID)) RemoveUses(owner, symbol->ID);
    KeepInHistories(leaving);
    TakeOut(*colSymbol(), leaving);
}

void frmMain::UsesRemoved() {
    LibraryChanged();
    // The next change of the edited timeline may follow on a step of another.
    if (mdlPrivateProfile::UndoRedoType()) AddUndoRedoData(UndoStep::Pending);
}

void frmMain::RemoveSymbolData(Long index, bool withUses) {
    const SymbolList leaving = SymbolsOf(*colSymbol(), WholeFolders(*colSymbol(), {index, index}));
    if (!withUses) {
        TakeOut(*colSymbol(), leaving);
        LibraryChanged();
        return;
    }
    RemoveWithUses(leaving);
    UsesRemoved();
}

void frmMain::RemoveSymbolAndUses(Long index) {
    RemoveSymbolData(index, true);
}

void frmMain::mnuRemoveSymbolItem() {
    const SymbolRange range = SelectedSymbols();
    if (range.Count() < 1) return;
    SymbolList leaving = SymbolsOf(*colSymbol(), WholeFolders(*colSymbol(), range));
    SymbolList fallen = FallenWith(*colSymbol(), leaving);
    std::sort(fallen.begin(), fallen.end(),
              [](const auto& a, const auto& b) { return a->Index < b->Index; });
    leaving.insert(leaving.end(), fallen.begin(), fallen.end());
    RemoveWithUses(leaving);
    SymbolSet gone;
    for (const auto& symbol : leaving) gone.insert(symbol.get());
    const AssetReader assets;
    for (const auto& text : ClearReferences(*colSymbol(), gone)) assets.SetTextSize(*text);
    SelectSymbols(0, 0);
    UsesRemoved();
}

void frmMain::SymbolsReturned(Long first) {
    SymbolIds ids(*colSymbol());
    SeparateIds(*colSymbol(), ids, first, colSymbol()->Count(), TellRepeatedIds);
    uncountedWork_ = true;
    RefreshFgrdSymbol();
}

bool frmMain::mnuSymbolIDEdit(const ChooseIds& choose) {
    const SymbolRange range = SelectedSymbols();
    SymbolIdEdit edit(*colSymbol(), range.First, range.Last);
    if (edit.Count() == 0 || !choose(edit) || !edit.IsAllowed()) return false;
    edit.Apply(TellRepeatedIds);
    LibraryChanged();
    return true;
}

void frmMain::ReplaceLibrary(std::shared_ptr<Collection<clsSymbolData>> library) {
    inProject.colSymbol = std::move(library);
    LibraryChanged();
}

void frmMain::mnuSortSymbolID(bool descending) {
    ReplaceLibrary(SortSymbols(*colSymbol(), SymbolOrder::Id, descending, 1, colSymbol()->Count()));
}

void frmMain::mnuSortSymbolType(bool descending) {
    ReplaceLibrary(
        SortSymbols(*colSymbol(), SymbolOrder::Type, descending, 1, colSymbol()->Count()));
}

void frmMain::mnuSortSymbolFolder() {
    ReplaceLibrary(SortFolders(*colSymbol()));
}

void frmMain::SortSelected(SymbolOrder order, bool descending) {
    const SymbolRange range = SelectedSymbols();
    if (range.Count() > 1)
        ReplaceLibrary(SortSymbols(*colSymbol(), order, descending, range.First, range.Last));
}

void frmMain::mnuSortSymbolSelID(bool descending) {
    SortSelected(SymbolOrder::Id, descending);
}

void frmMain::mnuSortSymbolSelType(bool descending) {
    SortSelected(SymbolOrder::Type, descending);
}

bool frmMain::MoveSymbols(Long first, Long last, Long target, bool inFolder, bool after) {
    if (first < 1 || last < first || last > colSymbol()->Count() || target < 1) return false;
    SymbolRange rows{first, last};
    if (!tamber::MoveSymbols(*colSymbol(), rows, target, inFolder, after)) return false;
    SelSymbol1 = rows.First;
    SelSymbol2 = rows.Last;
    LibraryChanged();
    return true;
}

bool frmMain::mnuSymbolReLoad() {
    const SymbolRange range = SelectedSymbols();
    const AssetReader assets;
    SymbolSet read;
    Notices told;
    bool all = true;
    for (Long row = range.First; row <= range.Last; ++row) {
        clsSymbolData& symbol = *(*colSymbol())(row);
        if (symbol.FilePathName.empty()) continue;
        if (FileExists(symbol.FilePathName) && assets.LoadFile(symbol, told)) {
            read.insert(&symbol);
            continue;
        }
        TellUnreadable(symbol.FilePathName);
        all = false;
    }
    ShowNotices(told);
    FollowReload(*colSymbol(), read, assets);
    view_->RefreshFgrdSymbol();
    ShowEditFrame();
    return all;
}

bool frmMain::ChangeSymbol(const EditSymbolData& edit) {
    const SymbolRange range = SelectedSymbols();
    if (range.Count() < 1) return false;
    clsSymbolData& symbol = *(*colSymbol())(range.First);
    if (!edit(symbol)) return false;
    LibraryChanged();
    if (range.First == editIndex) SetCanvasSize();
    if (symbol.eType() == KindText) AssetReader().SetTextSize(symbol);
    if (symbol.FilePathName.empty()) return true;
    SelectSymbols(range.First, range.First);
    return mnuSymbolReLoad();
}

}  // namespace tamber

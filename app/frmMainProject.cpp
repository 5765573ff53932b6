#include <algorithm>

#include "app/AssetReader.h"
#include "app/frmMain.h"
#include "app/mdlPrivateProfile.h"
#include "document/ProjectWriter.h"
#include "document/edit/ProjectRelease.h"
#include "document/elements/SymbolKinds.h"
#include "document/records/SymbolTimeline.h"
#include "platform/UserInterface.h"
#include "platform/paths.h"
#include "platform/text.h"

// The commands that tell which project is open, and which of its timelines is edited.

namespace tamber {

namespace {

constexpr Long LargestStage = 2000;
constexpr Single LowestRate = 0.01f;
constexpr Single HighestRate = 100;

bool IsOfferedVersion(Long version) {
    return version == 4 || (version >= 6 && version <= 8);
}

void Record(clsUndoRedo& history, clsUndoRedoData data, const Collection<clsLayer>& layers,
            UndoStep type) {
    switch (type) {
        case UndoStep::Init:
            history.Init(data, layers);
            break;
        case UndoStep::Pending:
            history.SetUndoRedoData(std::move(data), layers);
            break;
        case UndoStep::Change:
        case UndoStep::Merge:
            history.Change(std::move(data), layers, type == UndoStep::Merge);
            break;
    }
}

/// Makes the present state the saved one. No edit joins the step that led to it.
void CountFromHere(clsUndoRedo& history) {
    history.TotalHistory = 0;
    history.Tag.clear();
}

FileDialog ProjectDialog(StringView title) {
    FileDialog dialog;
    dialog.Title = title;
    return dialog;
}

}  // namespace

bool frmMain::IsProjectChanged() const {
    if (cUndoRedo.TotalHistory != 0) return true;
    if (mdlPrivateProfile::UndoRedoType()) return false;
    return std::any_of(colSymbol()->begin(), colSymbol()->end(), [](const auto& symbol) {
        const auto* history = OwnHistory(*symbol);
        return history != nullptr && *history && (*history)->TotalHistory != 0;
    });
}

bool frmMain::Guard() {
    if (!HasUnsavedWork()) return true;
    const Answer answer =
        CurrentUserInterface().Ask(u"プロジェクトは変更されています。\r\n上書き保存しますか？",
                                   ProgramTitle, Choices::YesNoCancel);
    if (answer == Answer::Cancel) return false;
    return answer == Answer::No || (mnuSave() && !HasUnsavedWork());
}

void frmMain::ShowProject() {
    editIndex = 0;
    SetLayers(EditMain, 1, 0);
    SelectSymbols(0, 0);
    RefreshFgrdSymbol();
    cUndoRedo.OnUndo = cUndoRedo.OnRedo = nullptr;
    AddUndoRedoData(UndoStep::Init);
    AttachHistory();
    uncountedWork_ = false;
}

bool frmMain::mnuNew() {
    if (!Guard()) return false;
    ProjectFileName.clear();
    ProjectDir.clear();
    ReleaseProject(inProject, cUndoRedo);
    inProject.Html.reset();
    AddBackgroundLayer();
    ShowProject();
    return true;
}

String frmMain::ExistingProject(StringView path, StringView title) {
    String chosen(path);
    if (chosen.empty()) {
        FileDialog dialog = ProjectDialog(title);
        dialog.Filters = {{u"KVFファイル (*.kvf;*.kvfz)", u"*.kvf;*.kvfz"}};
        chosen = CurrentUserInterface().OpenFileDialog(dialog);
        if (chosen.empty()) return {};
    }
    if (FileExists(chosen)) return chosen;
    ShowMessage(chosen + u"\r\n\r\nファイルが見つかりません。");
    return {};
}

bool frmMain::OpenProject(StringView path) {
    if (!Guard()) return false;
    const String chosen = ExistingProject(path, u"プロジェクトを開く");
    if (chosen.empty()) return false;
    Project opened = inProject;
    if (!ShowLoad(LoadProject(chosen, opened, AssetReader()))) return false;
    ReleaseProject(inProject, cUndoRedo);
    inProject = std::move(opened);
    ProjectFileName = chosen;
    ProjectDir = GetFileFolder(chosen);
    ShowProject();
    AddRecentFile(chosen);
    return true;
}

bool frmMain::mnuSave() {
    return ProjectFileName.empty() ? mnuSaveNew() : mnuSaveNew(ProjectFileName);
}

bool frmMain::mnuSaveNew() {
    FileDialog dialog = ProjectDialog(u"名前を付けて保存");
    dialog.Filters = {{u"KVFファイル (*.kvf)", u"*.kvf"}, {u"KVFZファイル (*.kvfz)", u"*.kvfz"}};
    dialog.FilterIndex = FoldCase(GetFileExt(ProjectFileName)) == u"kvfz" ? 1 : 0;
    dialog.FileName = GetFileBase(ProjectFileName);
    const String path = CurrentUserInterface().SaveFileDialog(dialog);
    return !path.empty() && mnuSaveNew(path);
}

bool frmMain::mnuSaveNew(StringView path) {
    const String target(path);
    if (FileExists(target) && IsSymbolFile(target)) {
        TellInUse(target);
        return false;
    }
    RuntimeError why(0, u"", u"");
    if (!SaveTo(target, &why)) {
        ShowMessage(u"保存できませんでした。\r\n\r\n「Number： " + ToText(why.Number) + u"\r\n" +
                    why.Description + u"」");
        return false;
    }
    ProjectFileName = target;
    ProjectDir = GetFileFolder(target);
    ClearHistories();
    AddRecentFile(target);
    CurrentUserInterface().Status(u"保存しました");
    return true;
}

void frmMain::ClearHistories() {
    uncountedWork_ = false;
    CountFromHere(cUndoRedo);
    if (mdlPrivateProfile::UndoRedoType()) return;
    for (const auto& symbol : *colSymbol())
        if (auto* history = OwnHistory(*symbol); history != nullptr && *history)
            CountFromHere(**history);
}

void frmMain::AddRecentFile(StringView path) const {
    if (!blRecentFiles) return;
    std::vector<String> paths = mdlPrivateProfile::RecentFile();
    std::erase_if(paths, [path](const String& known) { return EqualsNoCase(known, path); });
    paths.insert(paths.begin(), String(path));
    mdlPrivateProfile::RecentFile(paths);
}

bool frmMain::mnuPrjProperty(Long width, Long height, Single frameRate, Long swfVersion) {
    const auto isSide = [](Long side) { return side >= 1 && side <= LargestStage; };
    if (!isSide(width) || !isSide(height) || !(frameRate >= LowestRate) ||
        frameRate > HighestRate || !IsOfferedVersion(swfVersion))
        return false;
    inProject.MainWidth = width;
    inProject.MainHeight = height;
    inProject.FrameRate = frameRate;
    inProject.SWFVersion = swfVersion;
    uncountedWork_ = true;
    if (editIndex == EditMain) SetCanvasSize();
    view_->DispDataTbl();
    ShowEditFrame();
    return true;
}

std::shared_ptr<clsSymbolData> frmMain::EditSymbol() const {
    return editIndex > 0 ? colSymbol()->Item(editIndex) : nullptr;
}

void frmMain::SetLayers(Long index, Long row, Long col) {
    const bool changed = index != 0 && index != editIndex;
    if (index != 0) editIndex = index;
    const auto symbol = EditSymbol();
    editLayers_ = symbol ? TimelineOf(*symbol) : colMainLayer();
    if (symbol && (symbol->eType() == KindClass || editLayers_->Empty())) SelFrame1 = SelFrame2 = 1;
    SetCanvasSize();
    SelIndex1 = SelIndex2 = row;
    if (const auto layer = EditLayer(); layer && col != 0)
        layer->SelectIndex = std::clamp(col, 1, std::max(layer->ObjectCount(), 1));
    view_->DispDataTbl();
    ShowEditFrame();
    if (changed && !mdlPrivateProfile::UndoRedoType()) AttachHistory();
}

void frmMain::ChangeSprite(Long index) {
    if (index == 0) {
        view_->DispDataTbl();
        return;
    }
    const bool isTimeline = index == EditMain || (index >= 1 && index <= colSymbol()->Count() &&
                                                  TimelineOf(*colSymbol()->Item(index)) != nullptr);
    if (index == editIndex || !isTimeline) return;
    SetLayers(index, 1, 0);
    if (mdlPrivateProfile::UndoRedoType()) AddUndoRedoData(UndoStep::Pending);
}

clsUndoRedo& frmMain::EditHistory() {
    const auto symbol = EditSymbol();
    if (!symbol || mdlPrivateProfile::UndoRedoType()) return cUndoRedo;
    std::shared_ptr<clsUndoRedo>& own = *OwnHistory(*symbol);
    if (!own) AddUndoRedoData2(own, *editLayers_, symbol, UndoStep::Change);
    return *own;
}

/// The buttons show what the history of the edited timeline can do.
void frmMain::AttachHistory() {
    clsUndoRedo& history = EditHistory();
    const auto show = [this, &history](bool) {
        // A change of the library is recorded in the histories of other timelines too.
        if (&history == &EditHistory()) view_->ShowUndoRedo(history.CanUndo(), history.CanRedo());
    };
    history.OnUndo = history.OnRedo = show;
    history.RaiseOnUndoRedo();
}

void frmMain::AddUndoRedoData(UndoStep type, StringView tag) {
    clsUndoRedo& history = EditHistory();
    clsUndoRedoData data;
    data.inSprite = EditSymbol();
    data.Row = SelIndex1;
    if (const auto layer = EditLayer()) data.KeyFrame = layer->SelectIndex;
    if (!tag.empty() && history.Tag == tag) type = UndoStep::Merge;
    if (type == UndoStep::Change && history.CanRedo() && history.TotalHistory < 0)
        uncountedWork_ = true;
    Record(history, std::move(data), *editLayers_, type);
    history.Tag = tag;
}

void frmMain::AddUndoRedoData2(clsUndoRedo& history, const Collection<clsLayer>& layers,
                               const std::shared_ptr<clsSymbolData>& symbol, UndoStep type) {
    clsUndoRedoData data;
    data.inSprite = symbol;
    Record(history, std::move(data), layers, type);
    history.Tag.clear();
}

void frmMain::AddUndoRedoData2(std::shared_ptr<clsUndoRedo>& history,
                               const Collection<clsLayer>& layers,
                               const std::shared_ptr<clsSymbolData>& symbol, UndoStep type) {
    if (history) {
        AddUndoRedoData2(*history, layers, symbol, type);
        return;
    }
    history = std::make_shared<clsUndoRedo>();
    history->Owner = symbol;
    history->MaxHistory(mdlPrivateProfile::UndoRedoMaxCount());
    AddUndoRedoData2(*history, layers, symbol, UndoStep::Init);
}

void frmMain::mnuUndoRedo(Long index) {
    clsUndoRedo& history = EditHistory();
    const Long symbols = colSymbol()->Count();
    const auto restored = index == 0   ? history.Undo(*colSymbol())
                          : index == 1 ? history.Redo(*colSymbol())
                                       : history.Ondo(*colSymbol());
    if (!restored) return;
    history.Tag.clear();
    if (colSymbol()->Count() != symbols) SymbolsReturned(symbols + 1);
    if (restored->inSprite) RemoveLoops(*restored->colEditLayer, *restored->inSprite);
    if (restored->colMainLayer) inProject.colMainLayer = restored->colMainLayer;
    if (!restored->inSprite) inProject.colMainLayer = restored->colEditLayer;
    const Long timeline = restored->inSprite ? restored->inSprite->Index : EditMain;
    const Long rows = std::max(restored->colEditLayer->Count(), 1);
    SetLayers(timeline, std::clamp(restored->Row, 1, rows), restored->KeyFrame);
}

}  // namespace tamber

#include "app/operations/ProjectOperations.h"

#include <algorithm>
#include <chrono>

#include "app/operations/LibraryOperations.h"
#include "app/operations/MovieBuilding.h"
#include "app/operations/MoviePageWriter.h"
#include "app/operations/RowOperations.h"
#include "app/settings/mdlPrivateProfile.h"
#include "app/tasks/Task.h"
#include "canvas/timeline/SymbolRows.h"
#include "document/ProjectWriter.h"
#include "document/edit/ProjectRelease.h"
#include "document/elements/SymbolKinds.h"
#include "document/records/SymbolTimeline.h"
#include "platform/UserInterface.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "swf/authoring/TextDefinition.h"

namespace tamber {

namespace {

using Kind = tamber::Change;

constexpr Long LargestStage = 2000;
constexpr Single LowestRate = 0.01f;
constexpr Single HighestRate = 100;

bool IsOfferedVersion(Long version) {
    return version == 4 || (version >= 6 && version <= 8);
}

FileDialog ProjectDialog(StringView title) {
    FileDialog dialog;
    dialog.Title = title;
    return dialog;
}

/// A project file to read: `path`, or what a dialog gives for an empty one. Empty when cancelled
/// and, after a message, when there is no such file.
String ExistingProject(StringView path, StringView title) {
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

}  // namespace

void ProjectOperations::AddBackgroundLayer() {
    auto layer = std::make_shared<clsLayer>();
    layer->SymbolData(std::make_shared<clsSymbolData>(KindBackGround));
    Long index = 0;
    layer->Add(1, nullptr, index);
    layer->Object(index)->blFixed = true;
    session_.inProject.colMainLayer->Add(std::move(layer));
}

bool ProjectOperations::Guard() {
    if (!session_.HasUnsavedWork()) return true;
    const Answer answer =
        CurrentUserInterface().Ask(u"プロジェクトは変更されています。\r\n上書き保存しますか？",
                                   ProgramTitle, Choices::YesNoCancel);
    if (answer == Answer::Cancel) return false;
    return answer == Answer::No || (Save() && !session_.HasUnsavedWork());
}

void ProjectOperations::CloseProject() {
    session_.inSelection.Timeline.reset();
    session_.inSelection.PassedOver.reset();
    ReleaseProject(session_.inProject, session_.inHistories.cUndoRedo);
}

void ProjectOperations::ShowProject() {
    session_.inHistories.Begin(mdlPrivateProfile::UndoRedoType(),
                               mdlPrivateProfile::UndoRedoMaxCount());
    session_.SetLayers(nullptr, 1, 0);
    session_.SelectSymbols(0, 0);
    session_.NumberLibrary();
    session_.AddUndoRedoData(UndoStep::Init);
    session_.blUncountedWork = false;
    session_.Note(Kind::Project);
}

void ProjectOperations::Begin() {
    AddBackgroundLayer();
    ShowProject();
}

bool ProjectOperations::New() {
    if (!Guard()) return false;
    session_.ProjectFileName.clear();
    session_.ProjectDir.clear();
    CloseProject();
    Begin();
    return true;
}

bool ProjectOperations::Read(const String& path, Project& out,
                             std::optional<Long> importInto) const {
    const auto load =
        RunTask([&] { return LoadProject(path, out, session_.Assets(), importInto); });
    return load && ShowLoad(*load);
}

bool ProjectOperations::Open(StringView path) {
    if (!Guard()) return false;
    const String chosen = ExistingProject(path, u"プロジェクトを開く");
    if (chosen.empty()) return false;
    Project opened = session_.inProject;
    if (!Read(chosen, opened)) return false;
    TakePageSettings(opened);
    CloseProject();
    session_.inProject = std::move(opened);
    session_.ProjectFileName = chosen;
    session_.ProjectDir = GetFileFolder(chosen);
    ShowProject();
    AddRecentFile(chosen);
    return true;
}

bool ProjectOperations::Save() {
    return session_.ProjectFileName.empty() ? SaveNew() : SaveNew(session_.ProjectFileName);
}

bool ProjectOperations::SaveNew() {
    FileDialog dialog = ProjectDialog(u"名前を付けて保存");
    dialog.Filters = {{u"KVFファイル (*.kvf)", u"*.kvf"}, {u"KVFZファイル (*.kvfz)", u"*.kvfz"}};
    dialog.FilterIndex = FoldCase(GetFileExt(session_.ProjectFileName)) == u"kvfz" ? 1 : 0;
    dialog.FileName = GetFileBase(session_.ProjectFileName);
    const String path = CurrentUserInterface().SaveFileDialog(dialog);
    return !path.empty() && SaveNew(path);
}

bool ProjectOperations::SaveNew(StringView path) {
    const String target(path);
    if (!SaveCopy(target)) return false;
    session_.ProjectFileName = target;
    session_.ProjectDir = GetFileFolder(target);
    session_.blUncountedWork = false;
    session_.inHistories.CountFromHere(*session_.colSymbol());
    session_.Note(Kind::Saved);
    AddRecentFile(target);
    CurrentUserInterface().Status(u"保存しました");
    return true;
}

bool ProjectOperations::SaveCopy(StringView path) {
    if (FileExists(path) && IsSymbolFile(path)) {
        TellInUse(path);
        return false;
    }
    Project saved = session_.inProject;
    if (mdlPrivateProfile::flgHTMLtoProject()) saved.Html = HtmlSection();
    RuntimeError why(0, u"", u"");
    if (SaveProject(path, saved, &why)) return true;
    ShowMessage(u"保存できませんでした。\r\n\r\n「Number： " + ToText(why.Number) + u"\r\n" +
                why.Description + u"」");
    return false;
}

void ProjectOperations::TakePageSettings(Project& read) const {
    if (read.Html) HtmlSection(*read.Html, session_.blRecentFiles);
    read.Html.reset();
}

void ProjectOperations::AddRecentFile(StringView path) const {
    if (!session_.blRecentFiles) return;
    std::vector<String> paths = mdlPrivateProfile::RecentFile();
    std::erase_if(paths, [path](const String& known) { return EqualsNoCase(known, path); });
    paths.insert(paths.begin(), String(path));
    mdlPrivateProfile::RecentFile(paths);
}

bool ProjectOperations::Import(StringView path, const ChooseImport& choose) {
    const String chosen = ExistingProject(path, u"プロジェクトのインポート");
    if (chosen.empty()) return false;
    Project incoming;
    ImportOptions options;
    Project& project = session_.inProject;
    if (!Read(chosen, incoming, project.SWFVersion)) return false;
    TakePageSettings(incoming);
    if (!choose(incoming, options)) return false;
    Collection<clsLayer> rows =
        ProjectImport(project, std::move(incoming), std::move(options), session_.Assets()).Run();
    session_.LibraryChanged();
    if (session_.EditsClass()) return true;
    RowOperations(session_).Insert(PlaceAt(*session_.colEditLayer(), 0, false, false),
                                   std::move(rows));
    return true;
}

bool ProjectOperations::ChangeStage(Long width, Long height, Single frameRate, Long swfVersion) {
    const auto isSide = [](Long side) { return side >= 1 && side <= LargestStage; };
    if (!isSide(width) || !isSide(height) || !(frameRate >= LowestRate) ||
        frameRate > HighestRate || !IsOfferedVersion(swfVersion))
        return false;
    Project& project = session_.inProject;
    project.MainWidth = width;
    project.MainHeight = height;
    project.FrameRate = frameRate;
    project.SWFVersion = swfVersion;
    session_.blUncountedWork = true;
    session_.CloseStep();
    session_.Note(Kind::Stage);
    return true;
}

bool ProjectOperations::IsTimeline(Long index) const {
    const auto& library = *session_.colSymbol();
    return index == Session::EditMain ||
           (index >= 1 && index <= library.Count() && TimelineOf(*library.Item(index)) != nullptr);
}

void ProjectOperations::ChangeTimeline(Long index) {
    if (index == 0) session_.Note(Kind::Rows);
    if (index == session_.editIndex() || !IsTimeline(index)) return;
    session_.SetLayers(index > 0 ? session_.colSymbol()->Item(index) : nullptr, 1, 0);
    if (session_.inHistories.Together()) session_.AddUndoRedoData(UndoStep::Pending);
}

void ProjectOperations::UndoRedo(Long index) {
    clsUndoRedo& history = session_.EditHistory();
    Collection<clsSymbolData>& library = *session_.colSymbol();
    const Long symbols = library.Count();
    const auto restored = index == 0   ? history.Undo(library)
                          : index == 1 ? history.Redo(library)
                                       : history.Ondo(library);
    if (!restored) return;
    history.Tag.clear();
    Project& project = session_.inProject;
    if (restored->inSprite) RemoveLoops(*restored->colEditLayer, *restored->inSprite);
    if (restored->colMainLayer) project.colMainLayer = restored->colMainLayer;
    if (!restored->inSprite) project.colMainLayer = restored->colEditLayer;
    if (library.Count() != symbols) LibraryOperations(session_).Returned(symbols + 1);
    const Long rows = std::max(restored->colEditLayer->Count(), 1);
    session_.SetLayers(restored->inSprite, std::clamp(restored->Row, 1, rows), restored->KeyFrame);
    session_.Note(Kind::History);
}

bool ProjectOperations::IsSource(StringView path) const {
    return SameFile(path, session_.ProjectFileName) || IsSymbolFile(path);
}

bool ProjectOperations::IsSymbolFile(StringView path) const {
    const auto& library = *session_.colSymbol();
    return std::any_of(library.begin(), library.end(), [path](const auto& symbol) {
        return !symbol->FilePathName.empty() && SameFile(path, symbol->FilePathName);
    });
}

void ProjectOperations::TellInUse(StringView path) {
    ShowMessage(String(path) + u"\r\n\r\nプロジェクトで使用中のファイルには出力できません。",
                ProgramTitle, MessageIcon::Error);
}

bool ProjectOperations::Author(StringView path) {
    if (FileExists(path) && IsSource(path)) {
        TellInUse(path);
        return false;
    }
    const Project& project = session_.inProject;
    const auto begin = std::chrono::steady_clock::now();
    MovieRequest request = RequestOf(session_);
    request.Path = path;
    String anchors;
    request.AnchorLabels = &anchors;
    const auto outcome = RunTask([&] {
        request.Fonts = RefreshFontAdmin(*project.colSymbol, project.SWFVersion);
        return mdlSWFAuthoring::BuildMovie(request);
    });
    if (!outcome) return false;
    ShowNotices(outcome->Told);
    if (!outcome->Written) return false;
    outcome->Identifiers.ShowIn(*project.colSymbol);
    if (mdlPrivateProfile::flgMakeHTML()) WritePage(path, anchors);
    const auto elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now() - begin);
    CurrentUserInterface().Status(ToGroupedText(elapsed.count()) + u" ms");
    return true;
}

/// `anchors` has a tab before each.
void ProjectOperations::WritePage(StringView moviePath, StringView anchors) const {
    const Project& project = session_.inProject;
    MoviePage page;
    page.Width = project.MainWidth;
    page.Height = project.MainHeight;
    page.Version = project.SWFVersion;
    page.Settings = HtmlSection();
    while (!anchors.empty()) {
        anchors.remove_prefix(1);
        const std::size_t end = std::min(anchors.find(u'\t'), anchors.size());
        page.Anchors.emplace_back(anchors.substr(0, end));
        anchors.remove_prefix(end);
    }
    WriteMoviePage(moviePath, std::move(page));
}

}  // namespace tamber

#include "app/Main.h"

#include <array>

#include "document/cells/clsCSV.h"
#include "platform/UserInterface.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

namespace {

constexpr Long MinScreenWidth = 640;
constexpr Long MinScreenHeight = 480;
constexpr std::size_t ShortestPath = 3;
constexpr StringView CannotStart = u"起動できません。";

struct Control {
    StringView Name;
    StringView Missing;
};

constexpr std::array<Control, 2> Controls{{
    {u"Richtx32.ocx", u"リッチテキストボックスコントロールがインストールされていません。"},
    {u"Comdlg32.ocx", u"コモンダイアログコントロールがインストールされていません。"},
}};

constexpr std::array<StringView, 6> Libraries{u"aclib.dll",    u"zlib.dll",  u"imgctl.dll",
                                              u"susiectl.dll", u"VBMP3.dll", u"stools.dll"};

bool LooksLikePath(StringView cell) {
    if (cell.size() < ShortestPath) return false;
    return Like(FoldCase(cell), u"[a-z]:*") || cell.front() == u'/' || FileExists(cell);
}

/// Waves that the preview of a sound leaves behind.
void DeleteTemporaryFiles() {
    for (const String& name : ListFiles(ProgramFolder(), u"_wav*.tmp"))
        DeleteFile(JoinPath(ProgramFolder(), name));
}

}  // namespace

bool Application::Main(StringView commandLine) {
    if (environment_.HandOver(commandLine)) return false;
    if (!CheckScreen() || !CheckComponents() || !LoadLibraries()) return false;
    DeleteOldKeywords();
    controller_ = std::make_unique<frmMain>();
    controller_->ClassNames(ClassNames());
    controller_->blRecentFiles(true);
    controller_->Form_Load();
    const String path = ProjectPathOf(commandLine);
    if (!path.empty()) controller_->OpenProject(AbsolutePath(path));
    return true;
}

void Application::Stop() {
    if (controller_) {
        controller_->DeleteSnapshot();
        DeleteTemporaryFiles();
        controller_->Form_Unload();
    }
    controller_.reset();
    FreeLibraries();
}

bool Application::CheckScreen() const {
    if (environment_.ScreenWidth() >= MinScreenWidth &&
        environment_.ScreenHeight() >= MinScreenHeight)
        return true;
    ShowMessage(
        String(u"本ソフトは640x480以上の解像度を要求します。").append(vbCrLf).append(CannotStart));
    return false;
}

bool Application::CheckComponents() const {
    for (const Control& control : Controls) {
        if (environment_.ComponentExists(control.Name)) continue;
        ShowMessage(String(control.Missing).append(vbCrLf).append(CannotStart));
        return false;
    }
    return true;
}

bool Application::LoadLibraries() {
    for (const StringView name : Libraries) {
        if (environment_.LoadLibrary(name)) {
            loaded_.emplace_back(name);
            continue;
        }
        ShowMessage(String(name) + u" が見つかりません。", u"Dll読込エラー");
        FreeLibraries();
        return false;
    }
    return true;
}

void Application::FreeLibraries() {
    while (!loaded_.empty()) {
        environment_.FreeLibrary(loaded_.back());
        loaded_.pop_back();
    }
}

/// A list of an earlier release, which would hide the present ones.
void Application::DeleteOldKeywords() const {
    DeleteFile(JoinPath(ProgramFolder(), PathFromCell(u"keyword\\default\\keyword5.txt")));
}

std::vector<String> Application::ClassNames() const {
    constexpr StringView Extension = u".as";
    std::vector<String> names = ListFiles(JoinPath(ProgramFolder(), u"class"), u"*.as");
    for (String& name : names) name.resize(name.size() - Extension.size());
    return names;
}

String ProjectPathOf(StringView commandLine) {
    clsCSV cells;
    cells.SeparateCode(u' ');
    cells.Text(String(commandLine));
    for (Long column = 0; column < cells.colS(); ++column) {
        String cell(cells.GetValue(column, 0));
        if (LooksLikePath(cell)) return cell;
    }
    return {};
}

}  // namespace tamber

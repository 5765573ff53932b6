#include "app/controller/frmMain.h"

#include <algorithm>

#include "app/operations/AssetReader.h"
#include "app/settings/mdlPrivateProfile.h"
#include "document/AppVersion.h"
#include "document/SymbolFiles.h"
#include "document/edit/ProjectRelease.h"
#include "document/elements/SymbolKinds.h"
#include "platform/RuntimeError.h"
#include "platform/UserInterface.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace tamber {

namespace {

/// Frames a second when the settings hold no number.
constexpr Single DefaultFrameRate = 24;
constexpr Single LowestFrameRate = 0.01f;
constexpr Single HighestFrameRate = 100;
/// Pixels of a new project's stage at most.
constexpr Long MaxStage = 2000;

Single FrameRateOf(StringView text) {
    try {
        return std::clamp(ToSingle(text), LowestFrameRate, HighestFrameRate);
    } catch (const RuntimeError&) {
        return DefaultFrameRate;
    }
}

/// A version that a project can have; the usual one for any other.
Long OfferedVersion(Long version) {
    constexpr Long Usual = 6;
    return version == 4 || (version >= 6 && version <= 8) ? version : Usual;
}

StringView WithoutQuotes(StringView text) {
    const bool quoted = text.size() >= 2 && text.front() == u'"' && text.back() == u'"';
    return quoted ? text.substr(1, text.size() - 2) : text;
}

}  // namespace

frmMain::frmMain() : session_(std::make_unique<AssetReader>()) {}

String frmMain::Caption() const {
    String caption = String(ProgramTitle) + u" Ver." + VersionText() + u" [RichEdit版]";
    if (!ProjectFileName().empty()) caption += u" [" + GetFileName(ProjectFileName()) + u"]";
    return caption;
}

EditContext frmMain::CurrentEditContext() const {
    const auto& symbol = session_.EditSymbol();
    if (!symbol) {
        const String text = u"メイン(SWF" + ToText(SWFVersion()) + u"," + ToText(MainWidth()) +
                            u"*" + ToText(MainHeight()) + u"," + ToText(FrameRate()) + u")";
        return {text, ColorLong(192, 192, 255)};
    }
    if (symbol->eType() == KindClass) return {symbol->Value(), ColorLong(192, 255, 192)};
    return {symbol->Value() + u" (ID：" + ToText(symbol->ID) + u")", ColorLong(255, 192, 192)};
}

void frmMain::LogStep(StringView step) {
    startLog_.append(step).append(u"完了").append(vbCrLf);
}

void frmMain::Form_Load() {
    Do([this] {
        LogStep(u"DLLの読み込み：");
        Project& project = session_.inProject;
        project.MainWidth = std::clamp(mdlPrivateProfile::CanvasWidth(), 1, MaxStage);
        project.MainHeight = std::clamp(mdlPrivateProfile::CanvasHeight(), 1, MaxStage);
        project.FrameRate = FrameRateOf(mdlPrivateProfile::FPS());
        project.SWFVersion = OfferedVersion(mdlPrivateProfile::SWFVersion());
        session_.chkVisibleForwardLayer = mdlPrivateProfile::flgForwardLayerVisible();
        session_.chkVisibleBackLayer = mdlPrivateProfile::flgBackLayerVisible();
        LogStep(u"ini読み込み：");
        LogStep(u"シンボル用リストクラス初期化：");
        project_.Begin();
        LogStep(u"背景レイヤー追加：");
        LogStep(u"メインのレイヤーをセット：");
        startLog_.clear();
        blHotKeyEnable_ = true;
    });
}

void frmMain::Form_Unload() {
    blHotKeyEnable_ = false;
    session_.inSelection = {};
    ReleaseProject(session_.inProject, session_.inHistories.cUndoRedo);
    session_.inHistories.cUndoRedo = clsUndoRedo();
}

void frmMain::HandOver(StringView path) {
    if (!blShowModal_) OpenProject(WithoutQuotes(path));
}

void frmMain::chkVisibleForwardLayer(bool on) {
    Do([&] {
        session_.chkVisibleForwardLayer = on;
        session_.Note(Change::Selection);
    });
}

void frmMain::chkVisibleBackLayer(bool on) {
    Do([&] {
        session_.chkVisibleBackLayer = on;
        session_.Note(Change::Selection);
    });
}

void frmMain::DispDataTbl() {
    Do([this] { session_.Note(Change::Rows); });
}

void frmMain::DispEditTimeLine() {
    Do([this] { session_.Note(Change::KeyFrames); });
}

void frmMain::ShowEditFrame() {
    Do([this] {
        session_.CloseStep();
        session_.Note(Change::KeyFrames);
    });
}

void frmMain::RefreshFgrdSymbol() {
    Do([this] { session_.NumberLibrary(); });
}

bool frmMain::mnuNew() {
    return Do([this] { return project_.New(); });
}

bool frmMain::OpenProject(StringView path) {
    return Do([&] { return project_.Open(path); });
}

bool frmMain::mnuSave() {
    return Do([this] { return project_.Save(); });
}

bool frmMain::mnuSaveNew() {
    return Do([this] { return project_.SaveNew(); });
}

bool frmMain::mnuSaveNew(StringView path) {
    return Do([&] { return project_.SaveNew(path); });
}

bool frmMain::SaveCopy(StringView path) {
    return Do([&] { return project_.SaveCopy(path); });
}

bool frmMain::mnuKVFImport(StringView path, const ChooseImport& choose) {
    return Do([&] { return project_.Import(path, choose); });
}

bool frmMain::mnuPrjProperty(Long width, Long height, Single frameRate, Long swfVersion) {
    return Do([&] { return project_.ChangeStage(width, height, frameRate, swfVersion); });
}

bool frmMain::mnuAuthoring(StringView path) {
    return Do([&] { return project_.Author(path); });
}

std::shared_ptr<const PictureMovie> frmMain::MovieToDraw() {
    return Do([this] { return pictures_.Movie(); });
}

std::shared_ptr<const PictureMovie> frmMain::SymbolToDraw(Long id) {
    return Do([&] { return pictures_.SymbolMovie(id); });
}

void frmMain::SetLayers(Long index, Long row, Long col) {
    Do([&] {
        const auto owner = index == 0  ? session_.EditSymbol()
                           : index > 0 ? colSymbol()->Item(index)
                                       : nullptr;
        session_.SetLayers(owner, row, col);
    });
}

void frmMain::ChangeSprite(Long index) {
    Do([&] { project_.ChangeTimeline(index); });
}

void frmMain::mnuUndoRedo(Long index) {
    Do([&] { project_.UndoRedo(index); });
}

void frmMain::AddUndoRedoData(UndoStep type, StringView tag) {
    Do([&] { session_.AddUndoRedoData(type, tag); });
}

void frmMain::SelectSymbols(Long row1, Long row2) {
    Do([&] { session_.SelectSymbols(row1, row2); });
}

void frmMain::AddSymbol(const std::shared_ptr<clsSymbolData>& symbol, Long index) {
    Do([&] { library_.Add(symbol, index); });
}

void frmMain::RemoveSymbolData(Long index, bool withUses) {
    Do([&] { library_.Remove(index, withUses); });
}

bool frmMain::RemoveLayersOfSymbol(Collection<clsLayer>& layers, Long id) {
    return Do([&] { return library_.RemoveLayersOf(layers, id); });
}

bool frmMain::mnuAddSymbolItem_Sprite(const EditSymbolData& edit) {
    return Do([&] { return library_.AddNew(KindSprite, edit); });
}

bool frmMain::mnuAddSymbolItem_Button(const EditSymbolData& edit) {
    return Do([&] { return library_.AddNew(KindButton, edit); });
}

bool frmMain::mnuAddSymbolItem_Koma(const EditSymbolData& edit) {
    return Do([&] { return library_.AddNew(KindKoma, edit); });
}

bool frmMain::mnuAddSymbolItem_MovieEmp(const EditSymbolData& edit) {
    return Do([&] { return library_.AddNew(KindMovieEmp, edit); });
}

bool frmMain::mnuAddSymbolItem_Link(const EditSymbolData& edit) {
    return Do([&] { return library_.AddNew(KindLink, edit); });
}

bool frmMain::mnuAddSymbolItem_Class(const EditSymbolData& edit) {
    return Do([&] { return library_.AddNew(KindClass, edit); });
}

bool frmMain::mnuAddSymbolItem_Folder() {
    const String name =
        CurrentUserInterface().InputBox(u"フォルダ名を入力して下さい。", u"フォルダ名入力",
                                        GetSymbolDefName(KindSymbolFolder, u"フォルダ"));
    return !name.empty() && mnuAddSymbolItem_Folder(name);
}

bool frmMain::mnuAddSymbolItem_Folder(StringView name) {
    return Do([&] {
        library_.AddFolder(name);
        return true;
    });
}

bool frmMain::mnuAddSymbolItem_File() {
    FileDialog dialog;
    dialog.Title = u"ファイル追加";
    dialog.Filters = SymbolFileFilters();
    const String path = CurrentUserInterface().OpenFileDialog(dialog);
    return !path.empty() && AddSymbolItem_File(path);
}

bool frmMain::mnuAddSymbolItem_File(const std::vector<String>& paths) {
    return Do([&] { return library_.AddFiles(paths); });
}

void frmMain::mnuRemoveSymbolItem() {
    Do([this] { library_.RemoveSelected(); });
}

bool frmMain::mnuSymbolIDEdit(const ChooseIds& choose) {
    return Do([&] { return library_.EditIds(choose); });
}

void frmMain::mnuSortSymbolID(bool descending) {
    Do([&] { library_.Sort(SymbolOrder::Id, descending); });
}

void frmMain::mnuSortSymbolType(bool descending) {
    Do([&] { library_.Sort(SymbolOrder::Type, descending); });
}

void frmMain::mnuSortSymbolFolder() {
    Do([this] { library_.SortByFolder(); });
}

void frmMain::mnuSortSymbolSelID(bool descending) {
    Do([&] { library_.SortSelected(SymbolOrder::Id, descending); });
}

void frmMain::mnuSortSymbolSelType(bool descending) {
    Do([&] { library_.SortSelected(SymbolOrder::Type, descending); });
}

bool frmMain::MoveSymbols(Long first, Long last, Long target, bool inFolder, bool after) {
    return Do([&] { return library_.Move(first, last, target, inFolder, after); });
}

bool frmMain::mnuSymbolReLoad() {
    return Do([this] { return library_.ReadAgain(); });
}

bool frmMain::ChangeSymbol(const EditSymbolData& edit) {
    return Do([&] { return library_.Change(edit); });
}

void frmMain::ChangeSelectIndex(Long row1, Long row2) {
    Do([&] { session_.SelectRows(row1, row2); });
}

void frmMain::SelectFrames(Long frame1, Long frame2) {
    Do([&] { session_.SelectFrames(frame1, frame2); });
}

bool frmMain::mnuJump(StringView label) {
    return Do([&] { return keyFrames_.Jump(label); });
}

void frmMain::mnuCopyKeyFrames() {
    Do([this] { keyFrames_.Copy(); });
}

void frmMain::mnuCutKeyFrames() {
    Do([this] { keyFrames_.Cut(); });
}

void frmMain::mnuPasteKeyFrames() {
    Do([this] { keyFrames_.Paste(FrameClipboard::Room::AsNeeded); });
}

void frmMain::mnuOverWriteKeyFrames() {
    Do([this] { keyFrames_.Paste(FrameClipboard::Room::Clear); });
}

void frmMain::mnuInsertKeyFrames() {
    Do([this] { keyFrames_.Paste(FrameClipboard::Room::Insert); });
}

void frmMain::mnuRemoveKeyFrames() {
    Do([this] { keyFrames_.Remove(); });
}

void frmMain::mnuAddKeyFrame() {
    Do([this] { keyFrames_.Add(); });
}

void frmMain::mnuShiftRight() {
    Do([this] { keyFrames_.Shift(ShiftDirection::Right); });
}

void frmMain::mnuShiftLeft() {
    Do([this] { keyFrames_.Shift(ShiftDirection::Left); });
}

void frmMain::mnuShiftRightAll() {
    Do([this] { keyFrames_.ShiftAll(ShiftDirection::Right); });
}

void frmMain::mnuShiftLeftAll() {
    Do([this] { keyFrames_.ShiftAll(ShiftDirection::Left); });
}

void frmMain::chkFixed(bool on) {
    Do([&] { keyFrames_.Fix(on); });
}

void frmMain::chkTween(bool on) {
    Do([&] { keyFrames_.Tween(on); });
}

void frmMain::cmdCopyLObject(Long index) {
    Do([&] { keyFrames_.CopyElement(index); });
}

bool frmMain::ChangeStartFrame(Long frame) {
    return Do([&] { return keyFrames_.ChangeStartFrame(frame); });
}

bool frmMain::ChangeDispCount(Long count) {
    return Do([&] { return keyFrames_.ChangeDispCount(count); });
}

bool frmMain::ChangeKeyFrame(StringView tag, const std::function<bool(clsLayerObject&)>& change) {
    return Do([&] { return keyFrames_.Change(tag, change); });
}

void frmMain::mnuCopyLayer() {
    Do([this] { rows_.Copy(); });
}

void frmMain::mnuCutLayer() {
    Do([this] { rows_.Cut(); });
}

void frmMain::mnuPasteLayer() {
    Do([this] { rows_.Paste(); });
}

void frmMain::mnuRemoveLayer() {
    Do([this] { rows_.Remove(); });
}

void frmMain::AddToLayer(Long row, bool inFolder, bool after) {
    Do([&] { rows_.AddSymbols(row, inFolder, after); });
}

void frmMain::mnuAddLayer_FrameLabel() {
    Do([this] { rows_.AddLabel(); });
}

void frmMain::mnuAddLayer_FrameAction() {
    Do([this] { rows_.AddAction(); });
}

void frmMain::mnuAddLayer_Folder(StringView name) {
    Do([&] { rows_.AddFolder(name); });
}

bool frmMain::ChangeLayer(StringView tag, const std::function<bool(clsLayer&)>& change) {
    return Do([&] { return rows_.Change(tag, change); });
}

bool frmMain::ChangeLayerSymbol(Long index) {
    return Do([&] { return rows_.ChangeSymbol(index); });
}

bool frmMain::ChangeInstanceName(StringView name) {
    return Do([&] { return rows_.ChangeInstanceName(name); });
}

}  // namespace tamber

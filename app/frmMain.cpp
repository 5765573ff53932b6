#include "app/frmMain.h"

#include <algorithm>
#include <chrono>
#include <limits>

#include "app/AssetReader.h"
#include "app/MoviePageWriter.h"
#include "app/mdlPrivateProfile.h"
#include "document/AppVersion.h"
#include "document/edit/ProjectRelease.h"
#include "document/ProjectWriter.h"
#include "document/elements/SymbolKinds.h"
#include "document/symbols/clsLayer.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/RuntimeError.h"
#include "platform/UserInterface.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "platform/twips.h"
#include "swf/authoring/TextDefinition.h"
#include "swf/authoring/mdlSWFAuthoring.h"

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

/// Sizes beyond the range give its ends.
Long ToTwips(Long pixels) {
    return static_cast<Long>(std::clamp<std::int64_t>(std::int64_t{TwipsPerPixel} * pixels,
                                                      std::numeric_limits<Long>::min(),
                                                      std::numeric_limits<Long>::max()));
}

}  // namespace

std::shared_ptr<clsLayer> frmMain::EditLayer() const {
    if (!editLayers_ || SelIndex1 < 1 || SelIndex1 > editLayers_->Count()) return nullptr;
    return editLayers_->Item(SelIndex1);
}

String frmMain::Caption() const {
    String caption = String(ProgramTitle) + u" Ver." + VersionText() + u" [RichEdit版]";
    if (!ProjectFileName.empty()) caption += u" [" + GetFileName(ProjectFileName) + u"]";
    return caption;
}

EditContext frmMain::CurrentEditContext() const {
    if (editIndex == EditMain) {
        const String text = u"メイン(SWF" + ToText(inProject.SWFVersion) + u"," +
                            ToText(inProject.MainWidth) + u"*" + ToText(inProject.MainHeight) +
                            u"," + ToText(inProject.FrameRate) + u")";
        return {text, ColorLong(192, 192, 255)};
    }
    const clsSymbolData& symbol = *colSymbol()->Item(editIndex);
    if (symbol.eType() == KindClass) return {symbol.Value(), ColorLong(192, 255, 192)};
    return {symbol.Value() + u" (ID：" + ToText(symbol.ID) + u")", ColorLong(255, 192, 192)};
}

frmMain::~frmMain() {
    ReleaseProject(inProject, cUndoRedo);
}

void frmMain::LogStep(StringView step) {
    startLog_.append(step).append(u"完了").append(vbCrLf);
}

void frmMain::Form_Load() {
    LogStep(u"DLLの読み込み：");
    inProject.MainWidth = std::clamp(mdlPrivateProfile::CanvasWidth(), 1, MaxStage);
    inProject.MainHeight = std::clamp(mdlPrivateProfile::CanvasHeight(), 1, MaxStage);
    inProject.FrameRate = FrameRateOf(mdlPrivateProfile::FPS());
    inProject.SWFVersion = mdlPrivateProfile::SWFVersion();
    chkVisibleForwardLayer = mdlPrivateProfile::flgForwardLayerVisible();
    chkVisibleBackLayer = mdlPrivateProfile::flgBackLayerVisible();
    LogStep(u"ini読み込み：");
    view_->RefreshFgrdSymbol();
    LogStep(u"シンボル用リストクラス初期化：");
    AddBackgroundLayer();
    LogStep(u"背景レイヤー追加：");
    cUndoRedo.MaxHistory(mdlPrivateProfile::UndoRedoMaxCount());
    ShowProject();
    LogStep(u"メインのレイヤーをセット：");
    startLog_.clear();
    blHotKeyEnable = true;
}

void frmMain::Form_Unload() {
    blHotKeyEnable = false;
    editLayers_.reset();
    ReleaseProject(inProject, cUndoRedo);
    cUndoRedo = clsUndoRedo();
}

void frmMain::AddBackgroundLayer() {
    auto layer = std::make_shared<clsLayer>();
    layer->SymbolData(std::make_shared<clsSymbolData>(KindBackGround));
    Long index = 0;
    layer->Add(1, nullptr, index);
    layer->Object(index)->blFixed = true;
    colMainLayer()->Add(std::move(layer));
}

bool frmMain::SaveTo(StringView path, RuntimeError* why) {
    // Settings of the page that the file brought along stay in it; others are put in when asked.
    if (!inProject.Html && mdlPrivateProfile::flgHTMLtoProject()) inProject.Html = HtmlSection();
    return SaveProject(path, inProject, why);
}

bool frmMain::IsSource(StringView path) const {
    return SameFile(path, ProjectFileName) || IsSymbolFile(path);
}

bool frmMain::IsSymbolFile(StringView path) const {
    return std::any_of(colSymbol()->begin(), colSymbol()->end(), [path](const auto& symbol) {
        return !symbol->FilePathName.empty() && SameFile(path, symbol->FilePathName);
    });
}

void frmMain::TellInUse(StringView path) {
    ShowMessage(String(path) + u"\r\n\r\nプロジェクトで使用中のファイルには出力できません。",
                ProgramTitle, MessageIcon::Error);
}

bool frmMain::mnuAuthoring(StringView path) {
    if (FileExists(path) && IsSource(path)) {
        TellInUse(path);
        return false;
    }
    view_->DispDataTbl();
    const auto begin = std::chrono::steady_clock::now();
    MovieRequest request;
    request.Width = ToTwips(inProject.MainWidth);
    request.Height = ToTwips(inProject.MainHeight);
    request.FrameRate = inProject.FrameRate;
    request.Version = inProject.SWFVersion;
    request.Library = inProject.colSymbol.get();
    request.Layers = inProject.colMainLayer.get();
    request.Fonts = RefreshFontAdmin(*inProject.colSymbol, inProject.SWFVersion);
    request.Path = path;
    request.ProjectFolder = GetFileFolder(ProjectFileName);
    request.blProgress = true;
    request.blCompress = mdlPrivateProfile::flgSWFCompress();
    request.blTopToBottom = mdlPrivateProfile::flgTopToBottom();
    String anchors;
    request.AnchorLabels = &anchors;
    const MovieOutcome outcome = mdlSWFAuthoring::BuildMovie(request);
    ShowNotices(outcome.Told);
    if (!outcome.Written) return false;
    outcome.Identifiers.ShowIn(*inProject.colSymbol);
    if (mdlPrivateProfile::flgMakeHTML()) WritePage(path, anchors);
    const auto elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now() - begin);
    CurrentUserInterface().Status(ToGroupedText(elapsed.count()) + u" ms");
    return true;
}

/// `anchors` has a tab before each.
void frmMain::WritePage(StringView moviePath, StringView anchors) const {
    MoviePage page;
    page.Width = inProject.MainWidth;
    page.Height = inProject.MainHeight;
    page.Version = inProject.SWFVersion;
    page.Settings = inProject.Html ? *inProject.Html : HtmlSection();
    while (!anchors.empty()) {
        anchors.remove_prefix(1);
        const std::size_t end = std::min(anchors.find(u'\t'), anchors.size());
        page.Anchors.emplace_back(anchors.substr(0, end));
        anchors.remove_prefix(end);
    }
    WriteMoviePage(moviePath, std::move(page));
}

}  // namespace tamber

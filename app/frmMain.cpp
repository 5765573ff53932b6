#include "app/frmMain.h"

#include <chrono>

#include "app/AssetReader.h"
#include "app/mdlPrivateProfile.h"
#include "document/AppVersion.h"
#include "document/SymbolKinds.h"
#include "document/clsLayer.h"
#include "document/clsSymbolData.h"
#include "platform/UserInterface.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "swf/mdlSWFAuthoring.h"

namespace tamber {

namespace {
constexpr Long TwipsPerPixel = 20;
/// Frames a second when the settings hold no number.
constexpr Single DefaultFrameRate = 24;
}

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

void frmMain::LogStep(StringView step) {
    startLog_.append(step).append(u"完了").append(vbCrLf);
}

void frmMain::Form_Load() {
    LogStep(u"DLLの読み込み：");
    inProject.MainWidth = mdlPrivateProfile::CanvasWidth();
    inProject.MainHeight = mdlPrivateProfile::CanvasHeight();
    const String rate = mdlPrivateProfile::FPS();
    inProject.FrameRate = IsNumeric(rate) ? ToSingle(rate) : DefaultFrameRate;
    inProject.SWFVersion = mdlPrivateProfile::SWFVersion();
    LogStep(u"ini読み込み：");
    view_->RefreshFgrdSymbol();
    LogStep(u"シンボル用リストクラス初期化：");
    AddBackgroundLayer();
    LogStep(u"背景レイヤー追加：");
    editLayers_ = colMainLayer();
    editIndex = EditMain;
    SelIndex1 = SelIndex2 = 1;
    view_->DispDataTbl();
    view_->ShowEditFrame();
    LogStep(u"メインのレイヤーをセット：");
    startLog_.clear();
    blHotKeyEnable = true;
}

void frmMain::Form_Unload() {
    blHotKeyEnable = false;
    editLayers_.reset();
    ClearCollection(*inProject.colMainLayer);
    ClearCollection(*inProject.colSymbol);
}

void frmMain::AddBackgroundLayer() {
    auto layer = std::make_shared<clsLayer>();
    layer->SymbolData(std::make_shared<clsSymbolData>(KindBackGround));
    Long index = 0;
    layer->Add(1, nullptr, index);
    layer->Object(index)->blFixed = true;
    colMainLayer()->Add(std::move(layer));
}

bool frmMain::OpenProject(StringView path) {
    if (!LoadProject(path, inProject, AssetReader())) return false;
    ProjectFileName = path;
    ProjectDir = GetFileFolder(path);
    editLayers_ = colMainLayer();
    editIndex = EditMain;
    SelIndex1 = SelIndex2 = 1;
    view_->RefreshFgrdSymbol();
    view_->DispDataTbl();
    view_->ShowEditFrame();
    return true;
}

bool frmMain::mnuAuthoring(StringView path) {
    view_->DispDataTbl();
    const auto begin = std::chrono::steady_clock::now();
    MovieRequest request;
    request.Width = inProject.MainWidth * TwipsPerPixel;
    request.Height = inProject.MainHeight * TwipsPerPixel;
    request.FrameRate = inProject.FrameRate;
    request.Version = inProject.SWFVersion;
    request.Library = inProject.colSymbol.get();
    request.Layers = inProject.colMainLayer.get();
    request.Path = path;
    request.blProgress = true;
    request.blCompress = mdlPrivateProfile::flgSWFCompress();
    request.blTopToBottom = mdlPrivateProfile::flgTopToBottom();
    if (!mdlSWFAuthoring::BuildMovie(request)) return false;
    const auto elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now() - begin);
    CurrentUserInterface().Status(ToGroupedText(elapsed.count()) + u" ms");
    return true;
}

}  // namespace tamber

#include <algorithm>

#include "app/frmMain.h"
#include "app/mdlPrivateProfile.h"
#include "document/elements/SymbolKinds.h"
#include "document/elements/clsObjBackGround.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/twips.h"
#include "swf/authoring/TextDefinition.h"

// What the canvas shows: a small movie of one frame.

namespace tamber {

namespace {

constexpr StringView SnapshotName = u"_edit.swf";
constexpr Long White = 0xFFFFFF;

}  // namespace

Long frmMain::CanvasWidth() const {
    const auto symbol = EditSymbol();
    return symbol && symbol->eType() == KindSprite ? symbol->PixelWidth() : inProject.MainWidth;
}

Long frmMain::CanvasHeight() const {
    const auto symbol = EditSymbol();
    return symbol && symbol->eType() == KindSprite ? symbol->PixelHeight() : inProject.MainHeight;
}

void frmMain::SetCanvasSize() {
    snapshot_.SetDimension(0, mdlSWFTag::ToField(CanvasWidth() * double{TwipsPerPixel}), 0,
                           mdlSWFTag::ToField(CanvasHeight() * double{TwipsPerPixel}), 0);
    view_->SetCanvasSize(CanvasWidth(), CanvasHeight());
}

void frmMain::ShowEditFrame() {
    EditHistory().Tag.clear();
    view_->ShowEditFrame();
}

Long frmMain::CanvasColor() const {
    if (editIndex != EditMain || colMainLayer()->Empty()) return White;
    const auto object = (*colMainLayer())(colMainLayer()->Count())->SelectObject();
    const auto* back = object ? object->ObjectAs<clsObjBackGround>() : nullptr;
    return back != nullptr ? back->BackColor() : White;
}

String frmMain::TempMoviePath() const {
    const bool beside = !ProjectFileName.empty() && mdlPrivateProfile::flgPrevPrjPath();
    return beside ? ProjectDir : ProgramFolder();
}

bool frmMain::ShowEditSWFBitmap(Long frame) {
    if (editLayers_->Empty()) {
        snapshotTags_.clear();
        view_->ReloadSnapshot({}, CanvasColor());
        return true;
    }
    const auto layer = EditLayer();
    const auto object = layer ? layer->SelectObject() : nullptr;
    const bool atCursor = !object || mdlPrivateProfile::flgCursorFrameDisp();
    if (frame < 1) frame = atCursor ? SelFrame1 : object->StartFrame();
    if (!WriteSnapshot(TempMoviePath(), frame) && !WriteSnapshot(SpareMoviePath(), frame))
        return false;
    nPrevFrame = frame;
    view_->ReloadSnapshot(snapshotPath_, CanvasColor());
    return true;
}

String frmMain::SpareMoviePath() const {
    return TempMoviePath() == ProgramFolder() && MakeFolders(UserFolder()) ? UserFolder()
                                                                           : String();
}

bool frmMain::WriteSnapshot(StringView folder, Long frame) {
    if (folder.empty()) return false;
    const String path = JoinPath(folder, SnapshotName);
    const bool isTaken =
        std::any_of(colSymbol()->begin(), colSymbol()->end(), [&path](const auto& symbol) {
            return symbol->FilePathName.ends_with(SnapshotName) &&
                   SameFile(symbol->FilePathName, path);
        });
    if (isTaken) return false;
    SnapshotRequest request;
    request.Layers = editLayers_.get();
    request.FirstRow = chkVisibleForwardLayer ? 1 : SelIndex1;
    request.LastRow = chkVisibleBackLayer ? editLayers_->Count() : SelIndex1;
    request.Frame = frame;
    request.blTopToBottom = mdlPrivateProfile::flgTopToBottom();
    snapshot_.Ver = inProject.SWFVersion;
    snapshot_.FrameRate = inProject.FrameRate;
    snapshot_.inFontAdmin = RefreshFontAdmin(*colSymbol(), inProject.SWFVersion);
    if (!WriteEditSnapshot(snapshot_, request, CanvasColor(), path, snapshotTags_))
        return false;
    if (snapshotPath_ != path) DeleteSnapshot();
    snapshotPath_ = path;
    return true;
}

void frmMain::DeleteSnapshot() {
    if (!snapshotPath_.empty() && FileExists(snapshotPath_)) DeleteFile(snapshotPath_);
    snapshotPath_.clear();
}

}  // namespace tamber

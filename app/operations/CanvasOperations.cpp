#include "app/operations/CanvasOperations.h"

#include <algorithm>

#include "app/settings/mdlPrivateProfile.h"
#include "document/elements/clsObjBackGround.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/twips.h"
#include "swf/authoring/TextDefinition.h"
#include "swf/mdlSWFTag.h"

namespace tamber {

namespace {

constexpr StringView SnapshotName = u"_edit.swf";
constexpr Long White = 0xFFFFFF;

Long ToTwips(Long pixels) {
    return mdlSWFTag::ToField(pixels * double{TwipsPerPixel});
}

}  // namespace

Long CanvasOperations::BackColor() const {
    const auto& layers = *session_.inProject.colMainLayer;
    if (session_.EditSymbol() || layers.Empty()) return White;
    const auto object = layers(layers.Count())->SelectObject();
    const auto* back = object ? object->ObjectAs<clsObjBackGround>() : nullptr;
    return back != nullptr ? back->BackColor() : White;
}

String CanvasOperations::TempMoviePath() const {
    const bool beside = !session_.ProjectFileName.empty() && mdlPrivateProfile::flgPrevPrjPath();
    return beside ? session_.ProjectDir : ProgramFolder();
}

String CanvasOperations::SparePath() const {
    return TempMoviePath() == ProgramFolder() && MakeFolders(UserFolder()) ? UserFolder()
                                                                           : String();
}

bool CanvasOperations::Write(Long frame) {
    if (session_.colEditLayer()->Empty()) {
        tags_.clear();
        shown_.clear();
        return true;
    }
    const auto object = session_.SelectedKeyFrame();
    const bool atCursor = !object || mdlPrivateProfile::flgCursorFrameDisp();
    if (frame < 1) frame = atCursor ? session_.inSelection.Frame1 : object->StartFrame();
    if (!WriteInto(TempMoviePath(), frame) && !WriteInto(SparePath(), frame)) return false;
    previousFrame_ = frame;
    shown_ = path_;
    return true;
}

bool CanvasOperations::WriteInto(StringView folder, Long frame) {
    if (folder.empty()) return false;
    const String path = JoinPath(folder, SnapshotName);
    const auto& library = *session_.colSymbol();
    const bool isTaken = std::any_of(library.begin(), library.end(), [&path](const auto& symbol) {
        return symbol->FilePathName.ends_with(SnapshotName) && SameFile(symbol->FilePathName, path);
    });
    if (isTaken) return false;
    const auto layers = session_.colEditLayer();
    const Long row = session_.inSelection.Row1;
    SnapshotRequest request;
    request.Layers = layers.get();
    request.FirstRow = session_.chkVisibleForwardLayer ? 1 : row;
    request.LastRow = session_.chkVisibleBackLayer ? layers->Count() : row;
    request.Frame = frame;
    request.blTopToBottom = mdlPrivateProfile::flgTopToBottom();
    snapshot_.SetDimension(0, ToTwips(session_.CanvasWidth()), 0, ToTwips(session_.CanvasHeight()),
                           0);
    snapshot_.Ver = session_.inProject.SWFVersion;
    snapshot_.FrameRate = session_.inProject.FrameRate;
    snapshot_.inFontAdmin = RefreshFontAdmin(library, session_.inProject.SWFVersion);
    if (!WriteEditSnapshot(snapshot_, request, BackColor(), path, tags_)) return false;
    if (path_ != path) Delete();
    path_ = path;
    return true;
}

void CanvasOperations::Delete() {
    if (!path_.empty() && FileExists(path_)) DeleteFile(path_);
    path_.clear();
}

}  // namespace tamber

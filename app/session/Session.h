#pragma once

#include <memory>
#include <vector>

#include "app/session/Histories.h"
#include "app/session/Selection.h"
#include "app/session/SessionChange.h"
#include "canvas/timeline/FrameClipboard.h"
#include "canvas/timeline/LayerClipboard.h"
#include "document/Project.h"
#include "document/ProjectReader.h"
#include "document/edit/SymbolLibrary.h"

namespace tamber {

/// An open project and all that belongs to the work on it: what is selected, what can be undone,
/// what was copied. Those who watch are told what each command changed.
class Session {
public:
    /// The main timeline is edited, and no symbol's.
    static constexpr Long EditMain = -1;

    Project inProject;
    String ProjectFileName;
    String ProjectDir;
    Selection inSelection;
    Histories inHistories;
    FrameClipboard inCopyFrames;
    LayerClipboard inCopyLayers;
    /// The canvas shows rows in front of the selected one, and behind it.
    bool chkVisibleForwardLayer = true;
    bool chkVisibleBackLayer = true;
    /// Work since the last save that counts of steps do not tell: changes of the library and of the
    /// stage, and a step in place of undone ones among which the saved state was.
    bool blUncountedWork = false;
    /// Opened and saved projects enter the list of recent files, and page settings that came with
    /// one the settings file.
    bool blRecentFiles = false;

    explicit Session(std::unique_ptr<ProjectAssets> assets) : assets_(std::move(assets)) {}
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Reads the files of symbols; one for the session, so that what it keeps serves.
    const ProjectAssets& Assets() const { return *assets_; }
    const std::shared_ptr<Collection<clsSymbolData>>& colSymbol() const {
        return inProject.colSymbol;
    }
    /// The edited timeline.
    std::shared_ptr<Collection<clsLayer>> colEditLayer() const;
    /// The symbol whose timeline is edited, null for the main timeline; and its row in the library.
    const std::shared_ptr<clsSymbolData>& EditSymbol() const { return inSelection.Timeline; }
    Long editIndex() const;
    bool EditsClass() const;
    /// The selected row, or null.
    std::shared_ptr<clsLayer> EditLayer() const;
    /// The selected row, where its key frames can be edited; else null. A class keeps one for each
    /// row, folders have one.
    std::shared_ptr<clsLayer> FrameLayer() const;
    /// The selected key frame, or null.
    std::shared_ptr<clsLayerObject> SelectedKeyFrame() const;
    /// The frame cursor was put where the selected row has no key frame; the one selected before
    /// still is.
    bool IsPassedOver() const;
    SymbolRange SelectedSymbols() const;
    /// Size in pixels of what the canvas shows: the stage, or the edited sprite.
    Long CanvasWidth() const;
    Long CanvasHeight() const;
    /// There is work to save: steps were recorded, or the library or the stage changed, or the
    /// saved state cannot be reached any more.
    bool HasUnsavedWork() const;
    bool CanUndo() const;
    bool CanRedo() const;

    /// Makes a timeline the edited one, null being the main one, and selects its row and, unless
    /// it is 0, key frame `col`.
    void SetLayers(const std::shared_ptr<clsSymbolData>& owner, Long row, Long col);
    /// Selects rows of the edited timeline, of the library, or frames; numbers beyond what is there
    /// give the nearest. Frames select the row's key frame that covers the first.
    void SelectRows(Long row1, Long row2);
    void SelectSymbols(Long row1, Long row2);
    void SelectFrames(Long frame1, Long frame2);
    /// Numbers the library's rows and finds their folders. Where the symbol whose timeline is
    /// edited is gone, the main one becomes the edited one.
    void NumberLibrary();
    /// The rows of the library, or what their symbols hold, changed; no step tells of it.
    void LibraryChanged(SessionChange kinds = Change::LibraryRows);

    /// History that edits of the edited timeline go into.
    clsUndoRedo& EditHistory() { return inHistories.Of(EditSymbol()); }
    /// The next edit opens a step of its own.
    void CloseStep() { EditHistory().Tag.clear(); }
    /// Records the edited timeline. A tag that the last step had too joins the two.
    void AddUndoRedoData(UndoStep type, StringView tag = {});
    /// Records a timeline in the history that its edits go into; null stands for the main one.
    void RecordTimeline(const std::shared_ptr<clsSymbolData>& owner, UndoStep type);

    /// Adds one who is told of changes, for the life of the session.
    void Watch(SessionWatcher watcher) { watchers_.push_back(std::move(watcher)); }
    /// Notes what the command in work changed.
    void Note(SessionChange change) { noted_ |= change; }
    /// Tells those who watch what was noted, if anything was.
    void TellWatchers();

private:
    void RestoreEditedTimeline();

    friend class Transaction;

    std::unique_ptr<ProjectAssets> assets_;
    std::vector<SessionWatcher> watchers_;
    SessionChange noted_;
};

}  // namespace tamber

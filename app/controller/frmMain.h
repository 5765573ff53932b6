#pragma once

#include <functional>
#include <vector>

#include "app/operations/CanvasOperations.h"
#include "app/operations/KeyFrameOperations.h"
#include "app/operations/LibraryOperations.h"
#include "app/operations/PictureOperations.h"
#include "app/operations/ProjectOperations.h"
#include "app/operations/RowOperations.h"
#include "app/session/CommandScope.h"
#include "app/session/Session.h"

namespace tamber {

/// The label over the layer table, which tells what is edited.
struct EditContext {
    String Text;
    /// Red in the low byte.
    Long BackColor = 0;
};

/// The controller: the face of the open project and of everything that edits it. What changes it
/// is refused while another command runs, and told to those who watch behind its end, once.
class frmMain {
public:
    /// The main timeline is edited, and no symbol's.
    static constexpr Long EditMain = Session::EditMain;
    /// Behind the last row of the library.
    static constexpr Long AtEnd = LibraryOperations::AtEnd;
    using EditSymbolData = LibraryOperations::EditSymbolData;
    using ChooseIds = LibraryOperations::ChooseIds;
    using ChooseImport = ProjectOperations::ChooseImport;

    frmMain();
    frmMain(const frmMain&) = delete;
    frmMain& operator=(const frmMain&) = delete;

    /// What is open and selected, to look at.
    const Session& inSession() const { return session_; }
    /// Adds one who is told what each command changed.
    void Watch(SessionWatcher watcher) { session_.Watch(std::move(watcher)); }

    const Project& inProject() const { return session_.inProject; }
    const std::shared_ptr<Collection<clsSymbolData>>& colSymbol() const {
        return session_.colSymbol();
    }
    const std::shared_ptr<Collection<clsLayer>>& colMainLayer() const {
        return session_.inProject.colMainLayer;
    }
    std::shared_ptr<Collection<clsLayer>> colEditLayer() const { return session_.colEditLayer(); }
    const String& ProjectFileName() const { return session_.ProjectFileName; }
    const String& ProjectDir() const { return session_.ProjectDir; }
    Long MainWidth() const { return inProject().MainWidth; }
    Long MainHeight() const { return inProject().MainHeight; }
    Single FrameRate() const { return inProject().FrameRate; }
    Long SWFVersion() const { return inProject().SWFVersion; }
    /// Row of the symbol whose timeline is edited, or `EditMain`.
    Long editIndex() const { return session_.editIndex(); }
    /// The selected layer, or null.
    std::shared_ptr<clsLayer> EditLayer() const { return session_.EditLayer(); }
    Long SelIndex1() const { return session_.inSelection.Row1; }
    Long SelIndex2() const { return session_.inSelection.Row2; }
    Long SelFrame1() const { return session_.inSelection.Frame1; }
    Long SelFrame2() const { return session_.inSelection.Frame2; }
    /// First and last selected row of the library, in either order; 0 when none is.
    Long SelSymbol1() const { return session_.inSelection.Symbol1; }
    Long SelSymbol2() const { return session_.inSelection.Symbol2; }
    /// History of the main timeline, or of all timelines where one serves all.
    const clsUndoRedo& cUndoRedo() const { return session_.inHistories.cUndoRedo; }
    /// The canvas shows rows in front of the selected one, and behind it.
    bool chkVisibleForwardLayer() const { return session_.chkVisibleForwardLayer; }
    void chkVisibleForwardLayer(bool on);
    bool chkVisibleBackLayer() const { return session_.chkVisibleBackLayer; }
    void chkVisibleBackLayer(bool on);
    bool blHotKeyEnable() const { return blHotKeyEnable_; }
    /// A modal dialog is up; a path handed over meanwhile is ignored.
    bool blShowModal() const { return blShowModal_; }
    void blShowModal(bool up) { blShowModal_ = up; }
    /// Names of the classes that the script editor offers.
    const std::vector<String>& ClassNames() const { return classNames_; }
    void ClassNames(std::vector<String> names) { classNames_ = std::move(names); }
    /// Opened and saved projects enter the list of recent files, and page settings that came with
    /// one the settings file.
    void blRecentFiles(bool on) { session_.blRecentFiles = on; }
    /// Title of the window: program, version, and the open project's file name.
    String Caption() const;
    EditContext CurrentEditContext() const;
    /// A command runs, and others are refused.
    bool Running() const { return gate_.Running(); }

    /// Starts with the default project: no symbols, one background layer, one fixed key frame.
    void Form_Load();
    /// Lets go of all that the start made, in its order.
    void Form_Unload();
    /// A path that another start of the program hands over, between double quotes or not. Ignored
    /// while a modal dialog is up.
    void HandOver(StringView path);
    /// Steps were recorded since the last save.
    bool IsProjectChanged() const { return session_.inHistories.Changed(*colSymbol()); }
    /// There is work to save: the project is changed, or the library or the stage are, of which no
    /// steps are recorded, or the saved state cannot be reached any more.
    bool HasUnsavedWork() const { return session_.HasUnsavedWork(); }
    /// An empty project in place of the open one, with its stage, rate and version. False when the
    /// user would rather keep what was changed.
    bool mnuNew();
    /// Reads a project in place of the open one; asks for its path when `path` is empty. False when
    /// the user would rather not, and when it cannot be read; the user was told and the open
    /// project stays.
    bool OpenProject(StringView path);
    /// Saves to the project's own path, or asks for one. False when it is not saved.
    bool mnuSave();
    bool mnuSaveNew();
    /// Saves to a path, which becomes the project's own. False when it is not saved, which is told:
    /// a file that a symbol is made from is no place for a project.
    bool mnuSaveNew(StringView path);
    /// Writes the open project to a path and keeps its own. False when it is not written, which is
    /// told: a file that a symbol is made from is no place for a project.
    bool SaveCopy(StringView path);
    /// Brings symbols and layers of another project into this one; asks for its path when `path` is
    /// empty. False when nothing came; a project that cannot be read was told.
    bool mnuKVFImport(StringView path, const ChooseImport& choose);
    /// Stage in pixels, 1 to 2000; frames a second, 0.01 to 100; version 4, 6, 7 or 8. False, with
    /// nothing changed, for anything else.
    bool mnuPrjProperty(Long width, Long height, Single frameRate, Long swfVersion);
    /// Generates the movie of the open project, and its page where the settings ask for one. False
    /// when nothing was written: a file that the project is made from is no place for a movie. A
    /// page that cannot be made is told, and the movie stays.
    bool mnuAuthoring(StringView path);
    /// The movie of the open project, to be drawn; null, with the reason told, when it cannot be
    /// built.
    std::shared_ptr<const PictureMovie> MovieToDraw();
    /// A movie of the symbol with a number alone; null, which is told, where none is to be seen.
    std::shared_ptr<const PictureMovie> SymbolToDraw(Long id);
    /// Makes a timeline the edited one and selects its row and, unless it is 0, key frame `col`:
    /// `index` 0 stays with the present one, -1 is the main timeline, else a symbol's.
    void SetLayers(Long index, Long row, Long col);
    /// Switches to a timeline, the first row selected; 0 only shows the present one again.
    void ChangeSprite(Long index);
    bool CanUndo() const { return session_.CanUndo(); }
    bool CanRedo() const { return session_.CanRedo(); }
    /// 0 undoes a step, 1 redoes one, 2 shows the present state again.
    void mnuUndoRedo(Long index);
    /// Records the edited timeline. A tag that the last step had too joins the two.
    void AddUndoRedoData(UndoStep type, StringView tag = {});

    /// Tell those who watch that the table, the timeline, the canvas and the pane of the key
    /// frame, or the list of symbols are to be drawn again. `ShowEditFrame` also lets the next
    /// edit open a step of its own.
    void DispDataTbl();
    void DispEditTimeLine();
    void ShowEditFrame();
    void RefreshFgrdSymbol();

    /// Size in pixels of what the canvas shows: the stage, or the edited sprite.
    Long CanvasWidth() const { return session_.CanvasWidth(); }
    Long CanvasHeight() const { return session_.CanvasHeight(); }
    /// Folder of the movie that the canvas shows: the project's, or the program's for one without a
    /// name and where the settings say so.
    String TempMoviePath() const { return canvas_.TempMoviePath(); }
    /// Writes a movie of what the edited timeline shows on a frame; 0 stands for the frame of the
    /// cursor or, as the settings say, where the selected key frame starts. Nothing is said; false
    /// when it could not be written, and the old one stays.
    bool ShowEditSWFBitmap(Long frame = 0) { return canvas_.Write(frame); }
    /// The movie that the canvas is to show, empty for none, and the colour behind it, red in the
    /// low byte.
    const String& SnapshotPath() const { return canvas_.Shown(); }
    Long CanvasColor() const { return canvas_.BackColor(); }
    /// The placements of that movie, each with its row and key frame.
    const PlacedTags& SnapshotTags() const { return canvas_.Tags(); }
    /// The frame that the canvas showed last, 0 for none.
    Long nPrevFrame() const { return canvas_.PreviousFrame(); }
    /// Removes the movie that the canvas shows.
    void DeleteSnapshot() { canvas_.Delete(); }

    /// Selects rows of the library; numbers beyond them give the nearest row. None is selected when
    /// both are below 1.
    void SelectSymbols(Long row1, Long row2);
    /// The smallest positive number that no symbol has.
    Long GetSymbolID() const { return tamber::GetSymbolID(*colSymbol()); }
    /// No symbol but the one at `index` has this number.
    bool CheckID(Long id, Long index) const { return tamber::CheckID(*colSymbol(), id, index); }
    /// The default name of a new symbol: `prefix` and a number.
    String GetSymbolDefName(Long kind, StringView prefix) const {
        return tamber::GetSymbolDefName(*colSymbol(), kind, prefix);
    }
    /// Puts a symbol into the library, in the place of the row `index`, or at its end.
    void AddSymbol(const std::shared_ptr<clsSymbolData>& symbol, Long index = AtEnd);
    /// Takes a row out of the library, a folder with all that is in it; with `withUses` the layers
    /// that show what goes out are removed too, a step for each timeline.
    void RemoveSymbolData(Long index, bool withUses);
    /// As `RemoveSymbolData` with the uses.
    void RemoveSymbolAndUses(Long index) { RemoveSymbolData(index, true); }
    /// Removes the layers that show a symbol of this number; the selected rows follow. False when
    /// there is none. No step is recorded.
    bool RemoveLayersOfSymbol(Collection<clsLayer>& layers, Long id);

    /// New symbols before the selected row, or at the library's end when none is selected. False
    /// when `edit` refuses. A number that is taken is told, and a free one given.
    bool mnuAddSymbolItem_Sprite(const EditSymbolData& edit);
    bool mnuAddSymbolItem_Button(const EditSymbolData& edit);
    bool mnuAddSymbolItem_Koma(const EditSymbolData& edit);
    bool mnuAddSymbolItem_MovieEmp(const EditSymbolData& edit);
    bool mnuAddSymbolItem_Link(const EditSymbolData& edit);
    bool mnuAddSymbolItem_Class(const EditSymbolData& edit);
    /// Asks for the folder's name.
    bool mnuAddSymbolItem_Folder();
    bool mnuAddSymbolItem_Folder(StringView name);
    /// Asks for a file to make a symbol of.
    bool mnuAddSymbolItem_File();
    /// False when one of the files could not be added, which was told; the others are.
    bool mnuAddSymbolItem_File(const std::vector<String>& paths);
    bool AddSymbolItem_File(StringView path) {
        return mnuAddSymbolItem_File(std::vector<String>{String(path)});
    }
    /// Removes the selected rows of the library, with the layers that show them and with what
    /// cannot stay without them; other references to them are cleared.
    void mnuRemoveSymbolItem();
    /// Numbers the selected rows of the library. False when nothing was changed.
    bool mnuSymbolIDEdit(const ChooseIds& choose);
    void mnuSortSymbolID(bool descending);
    void mnuSortSymbolType(bool descending);
    void mnuSortSymbolFolder();
    void mnuSortSymbolSelID(bool descending);
    void mnuSortSymbolSelType(bool descending);
    /// Moves rows of the library, folders whole, before the row `target`, or behind it with
    /// `after`, or with `inFolder` into a folder that it is. A row beyond the last one stands for
    /// the end. False when it is one of the moved rows.
    bool MoveSymbols(Long first, Long last, Long target, bool inFolder, bool after);
    /// Reads the files of the selected rows again. False when one cannot be read, which is told;
    /// its symbol stays as it was.
    bool mnuSymbolReLoad();
    /// Changes properties of the first selected symbol, whose file is read again. False when none
    /// is selected, when `edit` refuses, or for a file that cannot be read, which is told; the
    /// symbol then stays as it was.
    bool ChangeSymbol(const EditSymbolData& edit);

    /// Selects rows of the edited timeline; numbers beyond them give the nearest row.
    void ChangeSelectIndex(Long row1, Long row2);
    /// Selects frames, and the selected row's key frame that covers the first.
    void SelectFrames(Long frame1, Long frame2);
    /// Moves the frame cursor to a frame, or to a label's. False for a label that there is none of.
    void mnuJump(Long frame) { SelectFrames(frame, frame); }
    bool mnuJump(StringView label);

    void mnuCopyKeyFrames();
    void mnuCutKeyFrames();
    void mnuPasteKeyFrames();
    void mnuOverWriteKeyFrames();
    void mnuInsertKeyFrames();
    void mnuRemoveKeyFrames();
    void mnuAddKeyFrame();
    void mnuShiftRight();
    void mnuShiftLeft();
    void mnuShiftRightAll();
    void mnuShiftLeftAll();
    void chkFixed(bool on);
    void chkTween(bool on);
    /// Takes the previous key frame's element (0) or the next one's (1); the motion path stays.
    void cmdCopyLObject(Long index);
    /// Moves the start of the selected key frame between its neighbours. False when it cannot.
    bool ChangeStartFrame(Long frame);
    /// Sets the length of the selected key frame, which ends before the next one. False when it
    /// cannot, or when a flag decides it.
    bool ChangeDispCount(Long count);
    /// Changes the selected key frame. One step, which joins the last one that had the same tag.
    /// False when none is selected or `change` refuses.
    bool ChangeKeyFrame(StringView tag, const std::function<bool(clsLayerObject&)>& change);

    void mnuCopyLayer();
    void mnuCutLayer();
    /// Pastes before the selected row.
    void mnuPasteLayer();
    void mnuRemoveLayer();
    /// Places the selected rows of the library at a row of the edited timeline, with their key
    /// frames at the frame cursor.
    void AddToLayer(Long row, bool inFolder, bool after);
    /// New rows before the selected one.
    void mnuAddLayer_FrameLabel();
    void mnuAddLayer_FrameAction();
    void mnuAddLayer_Folder(StringView name);
    /// Changes properties of the selected row. False when there is none or `change` refuses.
    bool ChangeLayer(StringView tag, const std::function<bool(clsLayer&)>& change);
    /// Lets the selected row show another symbol of the library. False when it cannot; a sprite
    /// that would show itself is told.
    bool ChangeLayerSymbol(Long index);
    /// The name is refused, with a message, when scripts could not use it.
    bool ChangeInstanceName(StringView name);

private:
    /// Runs a command, unless another runs: then its result is the empty one of its type.
    template <class Work>
    auto Do(Work work) -> decltype(work()) {
        const CommandScope scope(session_, gate_);
        if (scope.Refused()) return decltype(work())();
        return work();
    }
    void LogStep(StringView step);

    CommandGate gate_;
    Session session_;
    ProjectOperations project_{session_};
    LibraryOperations library_{session_};
    RowOperations rows_{session_};
    KeyFrameOperations keyFrames_{session_};
    CanvasOperations canvas_{session_};
    PictureOperations pictures_{session_};
    bool blHotKeyEnable_ = false;
    bool blShowModal_ = false;
    std::vector<String> classNames_;
    /// What the start has done, a line a step; dropped once it went well.
    String startLog_;
};

}  // namespace tamber

#pragma once

#include <functional>
#include <memory>

#include "canvas/EditSnapshot.h"
#include "canvas/timeline/FrameClipboard.h"
#include "canvas/timeline/FrameShift.h"
#include "canvas/timeline/LayerClipboard.h"
#include "canvas/timeline/RowRange.h"
#include "document/Project.h"
#include "document/edit/SymbolIdEdit.h"
#include "document/edit/SymbolLibrary.h"
#include "document/edit/SymbolSort.h"
#include "document/edit/clsUndoRedo.h"
#include "output/ProjectImport.h"
#include "platform/RuntimeError.h"

namespace tamber {

/// What the controller asks its window to redraw. Without a window nothing is drawn.
class MainView {
public:
    virtual ~MainView() = default;

    virtual void DispDataTbl() {}
    virtual void DispEditTimeLine() {}
    /// The selected key frame or what it shows is another; a window shows its values and the
    /// canvas, by `ShowEditSWFBitmap`.
    virtual void ShowEditFrame() {}
    /// Shows the snapshot movie of a path, which stands still; nothing for an empty path. The
    /// colour behind it has red in the low byte.
    virtual void ReloadSnapshot(StringView path, Long backColor) {
        (void)path;
        (void)backColor;
    }
    virtual void RefreshFgrdSymbol() {}
    /// A symbol came to the library's end.
    virtual void AppendSymbol(const clsSymbolData& symbol) { (void)symbol; }
    virtual void SetCanvasSize(Long width, Long height) {
        (void)width;
        (void)height;
    }
    /// Whether a step can be undone, and redone.
    virtual void ShowUndoRedo(bool undo, bool redo) {
        (void)undo;
        (void)redo;
    }
};

/// The label over the layer table, which tells what is edited.
struct EditContext {
    String Text;
    /// Red in the low byte.
    Long BackColor = 0;
};

/// How a state enters a history.
enum class UndoStep {
    Init = 0,
    Change = 1,
    /// Put aside until a change follows in another timeline.
    Pending = 2,
    /// In place of the last one.
    Merge = 3,
};

/// The controller: owns the open project and everything that edits it.
class frmMain {
public:
    /// The main timeline is edited, and no symbol's.
    static constexpr Long EditMain = -1;
    /// Behind the last row of the library.
    static constexpr Long AtEnd = -1;

    Project inProject;
    Long editIndex = EditMain;
    Long SelIndex1 = 1;
    Long SelIndex2 = 1;
    /// First and last selected row of the library, in either order; 0 when none is.
    Long SelSymbol1 = 0;
    Long SelSymbol2 = 0;
    /// First and last frame selected, in either order. The first is where the frame cursor stands.
    Long SelFrame1 = 1;
    Long SelFrame2 = 1;
    /// The canvas shows rows in front of the selected one, and behind it.
    bool chkVisibleForwardLayer = true;
    bool chkVisibleBackLayer = true;
    /// The frame that the canvas showed last, 0 for none.
    Long nPrevFrame = 0;
    FrameClipboard inCopyFrames;
    LayerClipboard inCopyLayers;
    bool blHotKeyEnable = false;
    /// A modal dialog is up; a path handed over meanwhile is ignored.
    bool blShowModal = false;
    String ProjectFileName;
    String ProjectDir;
    /// Names of the classes that the script editor offers.
    std::vector<String> ClassNames;
    /// History of the main timeline, or of all timelines where the settings say "All".
    clsUndoRedo cUndoRedo;
    /// Opened and saved projects enter the list of recent files.
    bool blRecentFiles = false;

    explicit frmMain(std::shared_ptr<MainView> view = std::make_shared<MainView>())
        : view_(std::move(view)) {}
    ~frmMain();
    frmMain(const frmMain&) = delete;
    frmMain& operator=(const frmMain&) = delete;

    const std::shared_ptr<Collection<clsSymbolData>>& colSymbol() const {
        return inProject.colSymbol;
    }
    const std::shared_ptr<Collection<clsLayer>>& colMainLayer() const {
        return inProject.colMainLayer;
    }
    const std::shared_ptr<Collection<clsLayer>>& colEditLayer() const { return editLayers_; }
    /// Title of the window: program, version, and the open project's file name.
    String Caption() const;
    EditContext CurrentEditContext() const;
    /// The selected layer, or null.
    std::shared_ptr<clsLayer> EditLayer() const;

    /// Starts with the default project: no symbols, one background layer, one fixed key frame.
    void Form_Load();
    /// Lets go of all that the start made, in its order.
    void Form_Unload();
    void AddBackgroundLayer();
    /// Steps were recorded since the last save.
    bool IsProjectChanged() const;
    /// There is work to save: the project is changed, or the library or the stage are, of which no
    /// steps are recorded, or the saved state cannot be reached any more.
    bool HasUnsavedWork() const { return uncountedWork_ || IsProjectChanged(); }
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
    /// Lets a person choose what comes along. False when they would rather not.
    using ChooseImport = std::function<bool(const Project& incoming, ImportOptions& options)>;
    /// Brings symbols and layers of another project into this one; asks for its path when `path` is
    /// empty. False when nothing came; a project that cannot be read was told.
    bool mnuKVFImport(StringView path, const ChooseImport& choose);
    /// Stage in pixels, 1 to 2000; frames a second, 0.01 to 100; version 4, 6, 7 or 8. False, with
    /// nothing changed, for anything else.
    bool mnuPrjProperty(Long width, Long height, Single frameRate, Long swfVersion);
    /// Makes a timeline the edited one and selects its row and, unless it is 0, key frame `col`:
    /// `index` 0 stays with the present one, -1 is the main timeline, else a symbol's.
    void SetLayers(Long index, Long row, Long col);
    /// Switches to a timeline, the first row selected; 0 only shows the present one again.
    void ChangeSprite(Long index);

    /// Size in pixels of what the canvas shows: the stage, or the edited sprite.
    Long CanvasWidth() const;
    Long CanvasHeight() const;
    /// Folder of the snapshot movie: the project's, or the program's for one without a name and
    /// where the settings say so.
    String TempMoviePath() const;
    /// Writes and shows a movie of what the edited timeline shows on a frame; 0 stands for the
    /// frame of the cursor or, as the settings say, where the selected key frame starts. Nothing is
    /// said; false when it could not be written, and the old picture stays.
    bool ShowEditSWFBitmap(Long frame = 0);
    /// The placements of that movie, each with its row and key frame.
    const PlacedTags& SnapshotTags() const { return snapshotTags_; }
    /// Removes the movie that the canvas shows.
    void DeleteSnapshot();

    /// Selects rows of the library; numbers beyond them give the nearest row. None is selected when
    /// both are below 1.
    void SelectSymbols(Long row1, Long row2);
    /// The smallest positive number that no symbol has.
    Long GetSymbolID() const;
    /// No symbol but the one at `index` has this number.
    bool CheckID(Long id, Long index) const;
    /// The default name of a new symbol: `prefix` and a number.
    String GetSymbolDefName(Long kind, StringView prefix) const;
    /// Puts a symbol into the library, in the place of the row `index`, or at its end.
    void AddSymbol(const std::shared_ptr<clsSymbolData>& symbol, Long index = AtEnd);
    /// Takes a row out of the library, a folder with all that is in it; with `withUses` the layers
    /// that show what goes out are removed too, a step for each timeline.
    void RemoveSymbolData(Long index, bool withUses);
    /// As `RemoveSymbolData` with the uses.
    void RemoveSymbolAndUses(Long index);
    /// Removes the layers that show a symbol of this number; the selected rows follow. False when
    /// there is none. No step is recorded.
    bool RemoveLayersOfSymbol(Collection<clsLayer>& layers, Long id);
    /// Numbers the library's rows, finds their folders and shows them. The edited timeline stays
    /// the edited one, or is the main one when its symbol is gone.
    void RefreshFgrdSymbol();

    /// Lets a person give a new symbol its properties. False when they would rather not have it.
    using EditSymbolData = std::function<bool(clsSymbolData& symbol)>;
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
    bool AddSymbolItem_File(StringView path);

    /// Removes the selected rows of the library, with the layers that show them and with what
    /// cannot stay without them; other references to them are cleared.
    void mnuRemoveSymbolItem();
    /// Lets a person choose new numbers. False when they would rather not.
    using ChooseIds = std::function<bool(SymbolIdEdit& edit)>;
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
    /// is selected, when `edit` refuses, or for a file that cannot be read, which is told.
    bool ChangeSymbol(const EditSymbolData& edit);

    /// Selects rows of the edited timeline; numbers beyond them give the nearest row.
    void ChangeSelectIndex(Long row1, Long row2);
    /// Selects frames, and the selected row's key frame that covers the first.
    void SelectFrames(Long frame1, Long frame2);
    /// Moves the frame cursor to a frame, or to a label's. False for a label that there is none of.
    void mnuJump(Long frame);
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

    /// Records the edited timeline. A tag that the last step had too joins the two.
    void AddUndoRedoData(UndoStep type, StringView tag = {});
    /// Records a timeline, of a symbol or the main one, in a history.
    static void AddUndoRedoData2(clsUndoRedo& history, const Collection<clsLayer>& layers,
                                 const std::shared_ptr<clsSymbolData>& symbol, UndoStep type);
    /// The same, with a history made and begun when there is none.
    static void AddUndoRedoData2(std::shared_ptr<clsUndoRedo>& history,
                                 const Collection<clsLayer>& layers,
                                 const std::shared_ptr<clsSymbolData>& symbol, UndoStep type);
    bool CanUndo() { return EditHistory().CanUndo(); }
    bool CanRedo() { return EditHistory().CanRedo(); }
    /// 0 undoes a step, 1 redoes one, 2 shows the present state again.
    void mnuUndoRedo(Long index);
    /// Writes the open project to a path. False when it could not be written, `why` then tells.
    bool SaveTo(StringView path, RuntimeError* why);
    /// Generates the movie of the open project, and its page where the settings ask for one. False
    /// when nothing was written: a file that the project is made from is no place for a movie. A
    /// page that cannot be made is told, and the movie stays.
    bool mnuAuthoring(StringView path);

private:
    std::shared_ptr<MainView> view_;
    /// Work since the last save that counts of steps do not tell: changes of the library and of the
    /// stage, and a step in place of undone ones among which the saved state was.
    bool uncountedWork_ = false;
    std::shared_ptr<Collection<clsLayer>> editLayers_;
    clsSWFAdmin snapshot_;
    PlacedTags snapshotTags_;
    String snapshotPath_;
    /// What the start has done, a line a step; dropped once it went well.
    String startLog_;

    void LogStep(StringView step);
    /// The next edit opens a step of its own.
    void ShowEditFrame();
    void SetCanvasSize();
    /// What lies behind the main timeline, red in the low byte; white for a sprite's.
    Long CanvasColor() const;
    /// Where the snapshot lies when the program's folder takes no files; empty for nowhere.
    String SpareMoviePath() const;
    bool WriteSnapshot(StringView folder, Long frame);
    /// The selected row, where its key frames can be edited; else null. A class keeps one for each
    /// row, folders have one.
    std::shared_ptr<clsLayer> FrameLayer() const;
    bool EditsClass() const;
    void PasteKeyFrames(FrameClipboard::Room room);
    void ShiftSelection(ShiftDirection direction);
    void ShiftAll(ShiftDirection direction);
    /// What a change of key frames ends with: fixed ones that end their layers are fitted, and the
    /// step is shown and recorded.
    void FramesChanged();
    void FramesShown();
    /// What a change of rows ends with.
    void RowsChanged();
    /// A sprite that would show itself in the edited timeline, which is told.
    bool ShowsItself(const clsSymbolData& symbol) const;
    /// Takes the rows out that a sprite cannot have, since their symbols came to show it; told.
    static void RemoveLoops(Collection<clsLayer>& layers, const clsSymbolData& owner);
    bool InLibrary(const clsSymbolData& symbol) const;
    /// Puts rows into the edited timeline and selects them.
    void InsertLayers(const RowPlace& place, const Collection<clsLayer>& rows);
    void AddOwnLayer(const std::shared_ptr<clsLayer>& layer);
    /// The project's own file, or one that a symbol is made from.
    bool IsSource(StringView path) const;
    /// A file that a symbol is made from.
    bool IsSymbolFile(StringView path) const;
    static void TellInUse(StringView path);
    /// The symbol whose timeline is edited; null for the main timeline.
    std::shared_ptr<clsSymbolData> EditSymbol() const;
    /// History that edits of the edited timeline go into.
    clsUndoRedo& EditHistory();
    void AttachHistory();
    /// A project file to read: `path`, or what a dialog gives for an empty one. Empty when
    /// cancelled and, after a message, when there is no such file.
    static String ExistingProject(StringView path, StringView title);
    /// Asks what to do with changes. False when the command must not go on.
    bool Guard();
    void ClearHistories();
    SymbolRange SelectedSymbols() const;
    /// A symbol of a kind with a free number and, unless `word` is empty, a default name.
    std::shared_ptr<clsSymbolData> NewSymbol(Long kind, StringView word) const;
    bool AddNewSymbol(const std::shared_ptr<clsSymbolData>& symbol, const EditSymbolData& edit);
    /// What a change of the library's rows ends with.
    void LibraryChanged();
    void ReplaceLibrary(std::shared_ptr<Collection<clsSymbolData>> library);
    void SortSelected(SymbolOrder order, bool descending);
    void RemoveWithUses(const SymbolList& leaving);
    /// What a removal of symbols and their layers ends with.
    void UsesRemoved();
    void RemoveUses(const std::shared_ptr<clsSymbolData>& owner, Long id);
    /// Records a timeline in the history that its edits go into; null stands for the main one.
    void RecordTimeline(const std::shared_ptr<clsSymbolData>& owner, UndoStep type);
    void KeepInHistories(const SymbolList& leaving);
    /// Numbers symbols that an undo brought back, from the row `first` on.
    void SymbolsReturned(Long first);
    /// What all commands that put another project in place end with.
    void ShowProject();
    void AddRecentFile(StringView path) const;
    void WritePage(StringView moviePath, StringView anchors) const;
};

}  // namespace tamber

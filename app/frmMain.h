#pragma once

#include <memory>

#include "document/Project.h"
#include "platform/RuntimeError.h"

namespace tamber {

/// What the controller asks its window to redraw. Without a window nothing is drawn.
class MainView {
public:
    virtual ~MainView() = default;

    virtual void DispDataTbl() {}
    virtual void DispEditTimeLine() {}
    virtual void ShowEditFrame() {}
    virtual void RefreshFgrdSymbol() {}
};

/// The label over the layer table, which tells what is edited.
struct EditContext {
    String Text;
    /// Red in the low byte.
    Long BackColor = 0;
};

/// The controller: owns the open project and everything that edits it.
class frmMain {
public:
    /// The main timeline is edited, and no symbol's.
    static constexpr Long EditMain = -1;

    Project inProject;
    Long editIndex = EditMain;
    Long SelIndex1 = 1;
    Long SelIndex2 = 1;
    bool blHotKeyEnable = false;
    /// A modal dialog is up; a path handed over meanwhile is ignored.
    bool blShowModal = false;
    String ProjectFileName;
    String ProjectDir;
    /// Names of the classes that the script editor offers.
    std::vector<String> ClassNames;

    explicit frmMain(std::shared_ptr<MainView> view = std::make_shared<MainView>())
        : view_(std::move(view)) {}

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
    /// Reads a project in place of the open one. False when it cannot be read; the user was told
    /// and the open project stays.
    bool OpenProject(StringView path);
    /// Writes the open project to a path. False when it could not be written, `why` then tells.
    bool SaveTo(StringView path, RuntimeError* why);
    /// Generates the movie of the open project, and its page where the settings ask for one. False
    /// when nothing was written: a file that the project is made from is no place for a movie. A
    /// page that cannot be made is told, and the movie stays.
    bool mnuAuthoring(StringView path);

private:
    std::shared_ptr<MainView> view_;
    std::shared_ptr<Collection<clsLayer>> editLayers_;
    /// What the start has done, a line a step; dropped once it went well.
    String startLog_;

    void LogStep(StringView step);
    /// The project's own file, or one that a symbol is made from.
    bool IsSource(StringView path) const;
    void WritePage(StringView moviePath, StringView anchors) const;
};

}  // namespace tamber

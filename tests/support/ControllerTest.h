#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "app/frmMain.h"
#include "document/elements/SymbolKinds.h"
#include "document/records/clsPropertySprite.h"
#include "platform/RecordingUserInterface.h"
#include "platform/codepage.h"
#include "platform/paths.h"

namespace tamber {

/// What the controller asked its window for.
class RecordingView : public MainView {
public:
    Long Width = 0;
    Long Height = 0;
    bool Undo = true;
    bool Redo = true;
    /// How often the canvas was shown.
    Long Shown = 0;
    /// Snapshot that the canvas has, and the colour behind it.
    String Snapshot;
    Long BackColor = 0;
    void ShowEditFrame() override { ++Shown; }
    void ReloadSnapshot(StringView path, Long backColor) override {
        Snapshot = path;
        BackColor = backColor;
    }
    void SetCanvasSize(Long width, Long height) override {
        Width = width;
        Height = height;
    }
    void ShowUndoRedo(bool undo, bool redo) override {
        Undo = undo;
        Redo = redo;
    }
};

/// A controller with a new project, in a folder of its own.
class ControllerTest : public testing::Test {
protected:
    void SetUp() override {
        std::string folder = (std::filesystem::temp_directory_path() / "commandsXXXXXX").string();
        ASSERT_NE(mkdtemp(folder.data()), nullptr);
        folder_ = FromNarrow(folder);
        // What the program's folder cannot take goes there.
        setenv("XDG_CONFIG_HOME", (folder + "/config").c_str(), 1);
        program_ = ProgramFolder();
        ProgramFolder(folder_);
        main_.Form_Load();
    }
    void TearDown() override {
        ProgramFolder(program_);
        std::filesystem::remove_all(ToNarrow(folder_));
    }

    String Path(StringView name) const { return folder_ + u"/" + String(name); }
    clsLayer& Row(Long row) const { return *(*main_.colEditLayer())(row); }
    Long AddSprite(Long width) {
        auto sprite = std::make_shared<clsSymbolData>(KindSprite);
        sprite->ID = sprite->Index = main_.colSymbol()->Count() + 1;
        sprite->Property<clsPropertySprite>()->Width = width;
        main_.colSymbol()->Add(sprite);
        return sprite->Index;
    }

    String folder_;
    String program_;
    RecordingUserInterface interface_;
    UserInterfaceScope scope_{interface_};
    std::shared_ptr<RecordingView> view_ = std::make_shared<RecordingView>();
    frmMain main_{view_};
};

}  // namespace tamber

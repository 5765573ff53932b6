#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <utility>
#include <vector>

#include "app/controller/frmMain.h"
#include "document/elements/SymbolKinds.h"
#include "document/records/clsPropertySprite.h"
#include "platform/RecordingUserInterface.h"
#include "platform/codepage.h"
#include "platform/paths.h"

namespace tamber {

/// What the controller told of changes.
class RecordingWatcher {
public:
    /// One for each command that changed something.
    std::vector<SessionChange> Told;

    /// What was told since the last question.
    SessionChange Take() {
        SessionChange all;
        for (const SessionChange change : std::exchange(Told, {})) all |= change;
        return all;
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
        main_.Watch([this](SessionChange change) { watcher_.Told.push_back(change); });
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
    frmMain main_;
    RecordingWatcher watcher_;
};

}  // namespace tamber

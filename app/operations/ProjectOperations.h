#pragma once

#include <functional>
#include <optional>

#include "app/session/Session.h"
#include "output/ProjectImport.h"
#include "platform/RuntimeError.h"

namespace tamber {

/// Which project is open, which of its timelines is edited, and what is made of it.
class ProjectOperations {
public:
    /// Lets a person choose what comes along. False when they would rather not.
    using ChooseImport = std::function<bool(const Project& incoming, ImportOptions& options)>;

    explicit ProjectOperations(Session& session) : session_(session) {}

    /// Puts the default project in place: no symbols, one background layer, one fixed key frame.
    void Begin();
    /// False when the user would rather keep what was changed.
    bool New();
    /// Reads a project in place of the open one; asks for its path when `path` is empty. False when
    /// the user would rather not, and when it cannot be read; the user was told and the open
    /// project stays.
    bool Open(StringView path);
    /// Saves to the project's own path, or asks for one. False when it is not saved.
    bool Save();
    bool SaveNew();
    /// Saves to a path, which becomes the project's own. False when it is not saved, which is told:
    /// a file that a symbol is made from is no place for a project.
    bool SaveNew(StringView path);
    /// Writes the project to a path and keeps its own. False when it could not be written, which is
    /// told: a file that a symbol is made from is no place for a project.
    bool SaveCopy(StringView path);
    bool Import(StringView path, const ChooseImport& choose);
    bool ChangeStage(Long width, Long height, Single frameRate, Long swfVersion);
    /// Switches to a timeline by its symbol's row, the first row selected.
    void ChangeTimeline(Long index);
    /// 0 undoes a step, 1 redoes one, 2 shows the present state again.
    void UndoRedo(Long index);
    /// Generates the movie, and its page where the settings ask for one. False when nothing was
    /// written: a file that the project is made from is no place for a movie.
    bool Author(StringView path);

private:
    /// A file that a symbol is made from.
    bool IsSymbolFile(StringView path) const;
    static void TellInUse(StringView path);
    void AddBackgroundLayer();
    bool Guard();
    /// False when the project cannot be read, which is told, and when the user would rather not
    /// wait for it.
    bool Read(const String& path, Project& out, std::optional<Long> importInto = {}) const;
    void CloseProject();
    /// What all that put another project in place end with.
    void ShowProject();
    bool IsTimeline(Long index) const;
    bool IsSource(StringView path) const;
    /// Those that came with a file become the program's own.
    void TakePageSettings(Project& read) const;
    void AddRecentFile(StringView path) const;
    void WritePage(StringView moviePath, StringView anchors) const;

    Session& session_;
};

}  // namespace tamber

#pragma once

#include <vector>

#include "platform/types.h"

namespace tamber {

enum class MessageIcon { None, Information, Warning, Error };
enum class Choices { YesNo, YesNoCancel };
enum class Answer { Yes, No, Cancel };

struct FileFilter {
    String Text;     ///< as in "SWFファイル (*.swf)"
    String Pattern;  ///< as in "*.swf", several separated by ";"
};

struct FileDialog {
    String Title;
    std::vector<FileFilter> Filters;
    String Folder;
    String FileName;
    std::size_t FilterIndex = 0;
};

/// All that the program says to and asks of a person. A window, a run without one and a test each
/// have their own.
class UserInterface {
public:
    virtual ~UserInterface() = default;

    /// Shows a text and waits until it is read. Lines are separated by CR LF.
    virtual void Message(StringView text, StringView title, MessageIcon icon) = 0;
    /// Asks. Without a person the safe answer comes back: Cancel where there is one, else No.
    virtual Answer Ask(StringView text, StringView title, Choices choices) = 0;
    /// Asks whether to go on without something that cannot be had; not to is the safe answer.
    virtual bool AskToSkip(StringView text);
    /// Path to open or to write, empty when cancelled.
    virtual String OpenFileDialog(const FileDialog& dialog) = 0;
    virtual String SaveFileDialog(const FileDialog& dialog) = 0;
    /// Folder chosen, empty when cancelled.
    virtual String SelectFolderDialog(StringView title) = 0;
    /// A line typed in, empty when cancelled. Without a person the text offered comes back.
    virtual String InputBox(StringView prompt, StringView title, StringView offered) {
        (void)prompt;
        (void)title;
        return String(offered);
    }
    /// Long work: what is done, or nothing, and `done` of `total` items; `done` = `total` ends the
    /// display.
    virtual void Progress(StringView text, Long done, Long total) = 0;
    /// One line into the status area.
    virtual void Status(StringView text) = 0;
    /// Called again and again while work runs on a thread of its own, so that the interface lives
    /// on. False when the person wants that work to end.
    virtual bool Idle() { return true; }
};

/// Title of messages that have none of their own.
inline constexpr StringView ProgramTitle = u"Tamber";

/// The interface of the calling thread: that of the innermost UserInterfaceScope, else the one that
/// prints to standard error.
UserInterface& CurrentUserInterface();

/// Makes `interface` the calling thread's own for the life of the scope.
class UserInterfaceScope {
public:
    explicit UserInterfaceScope(UserInterface& interface);
    ~UserInterfaceScope();
    UserInterfaceScope(const UserInterfaceScope&) = delete;
    UserInterfaceScope& operator=(const UserInterfaceScope&) = delete;

private:
    UserInterface* previous_;
};

inline void ShowMessage(StringView text, StringView title = ProgramTitle,
                        MessageIcon icon = MessageIcon::None) {
    CurrentUserInterface().Message(text, title, icon);
}

}  // namespace tamber

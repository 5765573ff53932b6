#pragma once

#include <mutex>

#include "platform/UserInterface.h"

namespace tamber {

/// Talks to a person at a terminal: messages go to standard error as "title: text". Questions take
/// the safe answer; dialogs come back cancelled.
class ConsoleUserInterface : public UserInterface {
public:
    /// With `assumeYes` questions are answered with Yes.
    explicit ConsoleUserInterface(bool assumeYes = false) : assumeYes_(assumeYes) {}

    void Message(StringView text, StringView title, MessageIcon icon) override;
    Answer Ask(StringView text, StringView title, Choices choices) override;
    String OpenFileDialog(const FileDialog& dialog) override;
    String SaveFileDialog(const FileDialog& dialog) override;
    String SelectFolderDialog(StringView title) override;
    /// Shown on a terminal only.
    void Progress(StringView, Long done, Long total) override;
    void Status(StringView text) override;

    Long MessagesShown() const { return messagesShown_; }

private:
    bool assumeYes_;
    Long messagesShown_ = 0;
    Long percentShown_ = -1;
};

}  // namespace tamber

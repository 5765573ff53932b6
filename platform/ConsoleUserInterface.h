#pragma once

#include <utility>

#include "platform/UserInterface.h"

namespace tamber {

/// What is answered where nobody is asked.
struct ConsoleAnswers {
    /// Questions are answered with Yes.
    bool AssumeYes = false;
    /// Work goes on without files that cannot be had.
    bool SkipBroken = false;
    /// Folder in which files that are asked for are looked for by their names; empty for none.
    String AssetFolder;
};

/// Talks to a person at a terminal: messages go to standard error as "title: text". Questions take
/// the safe answer and dialogs come back cancelled where no other answers are given.
class ConsoleUserInterface : public UserInterface {
public:
    explicit ConsoleUserInterface(ConsoleAnswers answers = {}) : answers_(std::move(answers)) {}

    void Message(StringView text, StringView title, MessageIcon icon) override;
    Answer Ask(StringView text, StringView title, Choices choices) override;
    bool AskToSkip(StringView text) override;
    String OpenFileDialog(const FileDialog& dialog) override;
    String SaveFileDialog(const FileDialog& dialog) override;
    String SelectFolderDialog(StringView title) override;
    /// Shown on a terminal only.
    void Progress(StringView, Long done, Long total) override;
    void Status(StringView text) override;

    Long MessagesShown() const { return messagesShown_; }

private:
    ConsoleAnswers answers_;
    Long messagesShown_ = 0;
    Long percentShown_ = -1;
};

}  // namespace tamber

#pragma once

#include <deque>

#include "platform/ConsoleUserInterface.h"

namespace tamber {

/// Talks as ConsoleUserInterface does, and answers questions and file dialogs from lists first.
class BatchUserInterface : public ConsoleUserInterface {
public:
    using ConsoleUserInterface::ConsoleUserInterface;

    /// Answers to the next questions.
    std::deque<Answer> Answers;
    /// Paths that the next file dialogs give.
    std::deque<String> Paths;

    Answer Ask(StringView text, StringView title, Choices choices) override;
    String OpenFileDialog(const FileDialog& dialog) override;
    String SaveFileDialog(const FileDialog& dialog) override;

private:
    String NextPath();
};

}  // namespace tamber

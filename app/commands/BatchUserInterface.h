#pragma once

#include <deque>

#include "platform/ConsoleUserInterface.h"

namespace tamber {

/// Talks as ConsoleUserInterface does, and answers questions from a list first.
class BatchUserInterface : public ConsoleUserInterface {
public:
    using ConsoleUserInterface::ConsoleUserInterface;

    /// Answers to the next questions.
    std::deque<Answer> Answers;

    Answer Ask(StringView text, StringView title, Choices choices) override;
};

}  // namespace tamber

#include "app/commands/BatchUserInterface.h"

namespace tamber {

Answer BatchUserInterface::Ask(StringView text, StringView title, Choices choices) {
    if (Answers.empty()) return ConsoleUserInterface::Ask(text, title, choices);
    const Answer answer = Answers.front();
    Answers.pop_front();
    return answer;
}

}  // namespace tamber

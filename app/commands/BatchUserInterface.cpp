#include "app/commands/BatchUserInterface.h"

namespace tamber {

Answer BatchUserInterface::Ask(StringView text, StringView title, Choices choices) {
    if (Answers.empty()) return ConsoleUserInterface::Ask(text, title, choices);
    const Answer answer = Answers.front();
    Answers.pop_front();
    return answer;
}

String BatchUserInterface::OpenFileDialog(const FileDialog& dialog) {
    return Paths.empty() ? ConsoleUserInterface::OpenFileDialog(dialog) : NextPath();
}

String BatchUserInterface::SaveFileDialog(const FileDialog& dialog) {
    return Paths.empty() ? ConsoleUserInterface::SaveFileDialog(dialog) : NextPath();
}

String BatchUserInterface::NextPath() {
    String path = Paths.front();
    Paths.pop_front();
    return path;
}

}  // namespace tamber

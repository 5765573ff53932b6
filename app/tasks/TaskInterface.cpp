#include "app/tasks/TaskInterface.h"

namespace tamber {

void TaskInterface::Message(StringView text, StringView title, MessageIcon icon) {
    channel_.Tell([text = String(text), title = String(title), icon](UserInterface& interface) {
        interface.Message(text, title, icon);
    });
}

Answer TaskInterface::Ask(StringView text, StringView title, Choices choices) {
    return Answered([&](UserInterface& interface) { return interface.Ask(text, title, choices); });
}

bool TaskInterface::AskToSkip(StringView text) {
    return Answered([&](UserInterface& interface) { return interface.AskToSkip(text); });
}

String TaskInterface::OpenFileDialog(const FileDialog& dialog) {
    return Answered([&](UserInterface& interface) { return interface.OpenFileDialog(dialog); });
}

String TaskInterface::SaveFileDialog(const FileDialog& dialog) {
    return Answered([&](UserInterface& interface) { return interface.SaveFileDialog(dialog); });
}

String TaskInterface::SelectFolderDialog(StringView title) {
    return Answered([&](UserInterface& interface) { return interface.SelectFolderDialog(title); });
}

String TaskInterface::InputBox(StringView prompt, StringView title, StringView offered) {
    return Answered(
        [&](UserInterface& interface) { return interface.InputBox(prompt, title, offered); });
}

void TaskInterface::Progress(StringView text, Long done, Long total) {
    channel_.ShowProgress(text, done, total);
}

void TaskInterface::Status(StringView text) {
    channel_.Tell([text = String(text)](UserInterface& interface) { interface.Status(text); });
}

}  // namespace tamber

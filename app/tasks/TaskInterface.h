#pragma once

#include "app/tasks/TaskChannel.h"

namespace tamber {

/// What work on a thread of its own talks to: all goes to the thread that owns it.
class TaskInterface : public UserInterface {
public:
    explicit TaskInterface(TaskChannel& channel) : channel_(channel) {}

    /// The work goes on before it is read.
    void Message(StringView text, StringView title, MessageIcon icon) override;
    Answer Ask(StringView text, StringView title, Choices choices) override;
    bool AskToSkip(StringView text) override;
    String OpenFileDialog(const FileDialog& dialog) override;
    String SaveFileDialog(const FileDialog& dialog) override;
    String SelectFolderDialog(StringView title) override;
    String InputBox(StringView prompt, StringView title, StringView offered) override;
    void Progress(StringView text, Long done, Long total) override;
    void Status(StringView text) override;

private:
    template <class Question>
    auto Answered(Question question) {
        decltype(question(std::declval<UserInterface&>())) answer{};
        channel_.Ask([&](UserInterface& interface) { answer = question(interface); });
        return answer;
    }

    TaskChannel& channel_;
};

}  // namespace tamber

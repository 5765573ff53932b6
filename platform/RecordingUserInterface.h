#pragma once

#include <deque>
#include <vector>

#include "platform/UserInterface.h"

namespace tamber {

/// Remembers all that was said and answers from a prepared list, for runs that nobody watches.
class RecordingUserInterface : public UserInterface {
public:
    struct Entry {
        String Text;
        String Title;
    };

    std::vector<Entry> Messages;
    std::vector<Entry> Questions;
    std::vector<String> StatusLines;
    /// Answers to the next questions; Cancel or No when none is left.
    std::deque<Answer> Answers;
    /// Paths that the next file dialogs give; cancelled when none is left.
    std::deque<String> Paths;

    void Message(StringView text, StringView title, MessageIcon) override {
        Messages.push_back({String(text), String(title)});
    }
    Answer Ask(StringView text, StringView title, Choices choices) override {
        Questions.push_back({String(text), String(title)});
        if (Answers.empty()) return choices == Choices::YesNoCancel ? Answer::Cancel : Answer::No;
        const Answer answer = Answers.front();
        Answers.pop_front();
        return answer;
    }
    String OpenFileDialog(const FileDialog&) override { return NextPath(); }
    String SaveFileDialog(const FileDialog&) override { return NextPath(); }
    String SelectFolderDialog(StringView) override { return NextPath(); }
    void Progress(StringView, Long, Long) override {}
    void Status(StringView text) override { StatusLines.emplace_back(text); }

private:
    String NextPath() {
        if (Paths.empty()) return {};
        String path = Paths.front();
        Paths.pop_front();
        return path;
    }
};

}  // namespace tamber

#pragma once

#include "platform/UserInterface.h"

namespace tamber {

/// Says nothing and gives the safe answers: for work that nobody asked for, such as a picture that
/// is drawn again and again.
class SilentUserInterface : public UserInterface {
public:
    void Message(StringView, StringView, MessageIcon) override {}
    Answer Ask(StringView, StringView, Choices choices) override {
        return choices == Choices::YesNoCancel ? Answer::Cancel : Answer::No;
    }
    String OpenFileDialog(const FileDialog&) override { return {}; }
    String SaveFileDialog(const FileDialog&) override { return {}; }
    String SelectFolderDialog(StringView) override { return {}; }
    void Progress(StringView, Long, Long) override {}
    void Status(StringView) override {}
};

}  // namespace tamber

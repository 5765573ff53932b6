#pragma once

#include <atomic>

#include "platform/Notice.h"

namespace tamber {

/// Thrown out of work whose end nobody waits for any more.
struct TaskCancelled {};

/// How far work has come, and whether it is still wanted; read from any thread.
struct TaskProgress {
    std::atomic<Long> Done = 0;
    std::atomic<Long> Total = 0;
    std::atomic<bool> blCancel = false;
};

/// What work on a thread of its own talks to: what it says is kept for the one who started it, and
/// questions get the safe answer.
class TaskInterface : public UserInterface {
public:
    explicit TaskInterface(TaskProgress& progress) : progress_(progress) {}

    /// What was said, in order.
    Notices Said;

    void Message(StringView text, StringView title, MessageIcon icon) override {
        Said.push_back({String(text), String(title), icon, {}, Notice::Form::Box});
    }
    Answer Ask(StringView, StringView, Choices choices) override {
        return choices == Choices::YesNoCancel ? Answer::Cancel : Answer::No;
    }
    String OpenFileDialog(const FileDialog&) override { return {}; }
    String SaveFileDialog(const FileDialog&) override { return {}; }
    String SelectFolderDialog(StringView) override { return {}; }
    /// Ends work that was cancelled by a `TaskCancelled`.
    void Progress(StringView, Long done, Long total) override {
        progress_.Done = done;
        progress_.Total = total;
        if (progress_.blCancel) throw TaskCancelled();
    }
    void Status(StringView text) override {
        Said.push_back({String(text), {}, MessageIcon::None, {}, Notice::Form::Status});
    }

private:
    TaskProgress& progress_;
};

}  // namespace tamber

#pragma once

#include <exception>
#include <functional>
#include <optional>
#include <thread>

#include "app/tasks/TaskInterface.h"

namespace tamber {

/// Work on a thread of its own, over what only it changes: reading, generating, importing, wave
/// tables. Its result, and what it had to tell, come back to the one who started it.
template <class Result>
class Task {
public:
    explicit Task(std::function<Result()> work)
        : thread_([this, work = std::move(work)] { Run(work); }) {}
    /// Cancels work that still runs, and waits for its end.
    ~Task() {
        Cancel();
        if (thread_.joinable()) thread_.join();
    }
    Task(const Task&) = delete;
    Task& operator=(const Task&) = delete;

    bool Finished() const { return finished_; }
    /// Items done, and of how many; 0 of 0 before the first was told.
    Long Done() const { return progress_.Done; }
    Long Total() const { return progress_.Total; }
    /// The work ends where it next tells its progress.
    void Cancel() { progress_.blCancel = true; }

    /// Waits for the end and gives the result once; nothing for work that was cancelled. What the
    /// work threw comes out here.
    std::optional<Result> Take() {
        if (thread_.joinable()) thread_.join();
        if (fault_) std::rethrow_exception(std::exchange(fault_, nullptr));
        return std::exchange(result_, std::nullopt);
    }
    /// What the work had to tell, in order; to be asked behind `Take`.
    const Notices& Said() const { return said_; }

private:
    void Run(const std::function<Result()>& work) {
        TaskInterface interface(progress_);
        const UserInterfaceScope scope(interface);
        try {
            result_ = work();
        } catch (const TaskCancelled&) {
        } catch (...) {
            fault_ = std::current_exception();
        }
        said_ = std::move(interface.Said);
        finished_ = true;
    }

    TaskProgress progress_;
    Notices said_;
    std::optional<Result> result_;
    std::exception_ptr fault_;
    std::atomic<bool> finished_ = false;
    /// Last, so that all above is there when it begins.
    std::thread thread_;
};

}  // namespace tamber

#pragma once

#include <exception>
#include <functional>
#include <optional>
#include <thread>
#include <utility>

#include "app/tasks/TaskInterface.h"

namespace tamber {

/// Work on a thread of its own, over what nobody changes meanwhile. What it has to say and to ask
/// is said and asked by the one who started it, whose thread all but the work belongs to.
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

    bool Finished() const { return channel_.Ended(); }
    /// The work ends where it next tells its progress or asks.
    void Cancel() { channel_.Cancel(); }
    /// Says and asks what came since the last time; waits for it as long as `patience`. True when
    /// the work has ended and all was said.
    bool Serve(std::chrono::milliseconds patience = {}) { return channel_.Serve(patience); }

    /// Serves until the end and gives the result once; nothing for work that was cancelled. What
    /// the work threw comes out here.
    std::optional<Result> Take() {
        while (!Serve(WaitTime))
            if (!CurrentUserInterface().Idle()) Cancel();
        if (fault_) std::rethrow_exception(std::exchange(fault_, nullptr));
        return std::exchange(result_, std::nullopt);
    }

private:
    /// In which an interface that waits comes to its own work.
    static constexpr std::chrono::milliseconds WaitTime{10};

    void Run(const std::function<Result()>& work) {
        TaskInterface interface(channel_);
        const UserInterfaceScope scope(interface);
        try {
            result_ = work();
        } catch (const TaskCancelled&) {
        } catch (...) {
            fault_ = std::current_exception();
        }
        channel_.End();
    }

    TaskChannel channel_;
    std::optional<Result> result_;
    std::exception_ptr fault_;
    /// Last, so that all above is there when it begins.
    std::thread thread_;
};

/// Runs work as a task and waits for its end, while the calling thread's interface stays alive.
/// Nothing when the person would rather not wait for it.
template <class Work>
auto RunTask(Work work) {
    return Task<decltype(work())>(std::move(work)).Take();
}

}  // namespace tamber

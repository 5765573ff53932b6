#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <vector>

#include "platform/UserInterface.h"

namespace tamber {

/// Thrown out of work whose end nobody waits for any more.
struct TaskCancelled {};

/// The way between work on a thread of its own and the thread that owns it, on which all that the
/// work says and asks is said and asked, in the work's order.
class TaskChannel {
public:
    using Call = std::function<void(UserInterface&)>;

    /// Of the work: hands over what is to be said, and goes on.
    void Tell(Call call);
    /// Of the work: hands over a question, and waits until it was answered. Throws `TaskCancelled`
    /// once nobody waits for the work any more.
    void Ask(const Call& question);
    /// Of the work: how far it is. Throws `TaskCancelled` when it shall end, but not for
    /// `done` = `total`, which the ends of scopes tell.
    void ShowProgress(StringView text, Long done, Long total);
    /// Of the work: its last word.
    void End();

    /// Of the owner: says and asks, to the calling thread's interface, what came since the last
    /// time; waits for it as long as `patience`. True when the work has ended and all was said.
    bool Serve(std::chrono::milliseconds patience);
    /// Of the owner: the work ends where it next tells its progress or asks.
    void Cancel();
    bool Ended() const;

private:
    struct Progress {
        String Text;
        Long Done = 0;
        Long Total = 0;
        /// Not shown yet.
        bool blNew = false;
    };

    mutable std::mutex mutex_;
    std::condition_variable news_;
    std::condition_variable served_;
    std::vector<Call> calls_;
    /// Calls handed over, and served, since the beginning.
    std::uint64_t told_ = 0;
    std::uint64_t done_ = 0;
    Progress progress_;
    bool cancelled_ = false;
    bool ended_ = false;
};

}  // namespace tamber

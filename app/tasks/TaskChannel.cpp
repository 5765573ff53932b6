#include "app/tasks/TaskChannel.h"

#include <utility>

namespace tamber {

void TaskChannel::Tell(Call call) {
    const std::lock_guard lock(mutex_);
    calls_.push_back(std::move(call));
    ++told_;
    news_.notify_one();
}

void TaskChannel::Ask(const Call& question) {
    Tell(question);
    std::unique_lock lock(mutex_);
    const std::uint64_t mine = told_;
    served_.wait(lock, [&] { return cancelled_ || done_ >= mine; });
    if (done_ < mine) throw TaskCancelled();
}

void TaskChannel::ShowProgress(StringView text, Long done, Long total) {
    const std::lock_guard lock(mutex_);
    progress_ = {String(text), done, total, true};
    news_.notify_one();
    if (cancelled_ && done < total) throw TaskCancelled();
}

void TaskChannel::End() {
    const std::lock_guard lock(mutex_);
    ended_ = true;
    news_.notify_one();
}

bool TaskChannel::Serve(std::chrono::milliseconds patience) {
    std::unique_lock lock(mutex_);
    news_.wait_for(lock, patience, [this] { return ended_ || progress_.blNew || !calls_.empty(); });
    const std::vector<Call> calls = std::exchange(calls_, {});
    const Progress progress = progress_;
    progress_.blNew = false;
    const bool ended = ended_;
    lock.unlock();
    UserInterface& interface = CurrentUserInterface();
    if (progress.blNew) interface.Progress(progress.Text, progress.Done, progress.Total);
    for (const Call& call : calls) call(interface);
    lock.lock();
    done_ += calls.size();
    served_.notify_one();
    return ended;
}

void TaskChannel::Cancel() {
    const std::lock_guard lock(mutex_);
    cancelled_ = true;
    served_.notify_one();
}

bool TaskChannel::Ended() const {
    const std::lock_guard lock(mutex_);
    return ended_;
}

}  // namespace tamber

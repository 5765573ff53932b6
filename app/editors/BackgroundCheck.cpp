#include "app/editors/BackgroundCheck.h"

#include <utility>

namespace tamber {

BackgroundCheck::BackgroundCheck() : thread_([this] { Run(); }) {}

BackgroundCheck::~BackgroundCheck() {
    {
        const std::lock_guard lock(mutex_);
        ends_ = true;
    }
    changed_.notify_all();
    thread_.join();
}

Long BackgroundCheck::Start(Request request) {
    const std::lock_guard lock(mutex_);
    waiting_ = std::move(request);
    changed_.notify_all();
    return ++number_;
}

std::optional<BackgroundCheck::Outcome> BackgroundCheck::Take() {
    const std::lock_guard lock(mutex_);
    return std::exchange(outcome_, std::nullopt);
}

void BackgroundCheck::Finish() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return !waiting_ && !busy_; });
}

void BackgroundCheck::Run() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [this] { return ends_ || waiting_; });
        if (ends_) return;
        const Request request = std::move(*std::exchange(waiting_, std::nullopt));
        const Long number = number_;
        busy_ = true;
        lock.unlock();
        ScriptCheckResult result = CheckScript(request.Script, request.Kind, request.Version,
                                               request.ProjectFolder, request.blInitBlocks);
        lock.lock();
        busy_ = false;
        outcome_ = Outcome{number, std::move(result)};
        changed_.notify_all();
    }
}

}  // namespace tamber

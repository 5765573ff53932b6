#pragma once

#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

#include "script/ScriptCheck.h"

namespace tamber {

/// Checks scripts on a thread of its own, so that typing goes on meanwhile; of those that wait only
/// the last one given is checked.
class BackgroundCheck {
public:
    struct Request {
        String Script;
        ScriptKind Kind = ScriptKind::Frame;
        Long Version = 6;
        String ProjectFolder{};
        bool blInitBlocks = true;
    };
    /// A result, and the number that `Start` gave.
    struct Outcome {
        Long Number = 0;
        ScriptCheckResult Result;
    };

    BackgroundCheck();
    /// Waits for a check that runs.
    ~BackgroundCheck();
    BackgroundCheck(const BackgroundCheck&) = delete;
    BackgroundCheck& operator=(const BackgroundCheck&) = delete;

    /// Returns the number that the result will have.
    Long Start(Request request);
    /// The last result that was not taken yet.
    std::optional<Outcome> Take();
    /// Waits until nothing is left to check.
    void Finish();

private:
    void Run();

    std::mutex mutex_;
    std::condition_variable changed_;
    std::optional<Request> waiting_;
    std::optional<Outcome> outcome_;
    Long number_ = 0;
    bool busy_ = false;
    bool ends_ = false;
    std::thread thread_;
};

}  // namespace tamber

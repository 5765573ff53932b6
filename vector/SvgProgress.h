#pragma once

#include "platform/UserInterface.h"

namespace tamber {

/// Tells how far a text is read, about a hundred times at most, and at its life's end that all is
/// done.
class SvgProgress {
public:
    SvgProgress(StringView text, std::size_t total)
        : text_(text), total_(total), step_(total / Steps + 1) {
        CurrentUserInterface().Progress(text_, 0, static_cast<Long>(total_));
    }
    ~SvgProgress() {
        CurrentUserInterface().Progress(text_, static_cast<Long>(total_),
                                        static_cast<Long>(total_));
    }
    SvgProgress(const SvgProgress&) = delete;
    SvgProgress& operator=(const SvgProgress&) = delete;

    void At(std::size_t done) {
        if (done < next_ || done >= total_) return;
        next_ = done + step_;
        CurrentUserInterface().Progress(text_, static_cast<Long>(done), static_cast<Long>(total_));
    }

private:
    static constexpr std::size_t Steps = 100;

    StringView text_;
    std::size_t total_;
    std::size_t step_;
    std::size_t next_ = step_;
};

}  // namespace tamber

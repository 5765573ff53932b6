#pragma once

#include <algorithm>
#include <utility>

#include "platform/UserInterface.h"

namespace tamber {

/// The progress display while a vector file is read; goes when this object does.
class LoadProgress {
public:
    explicit LoadProgress(StringView fileName)
        : text_(u"ベクタファイル読込中...[" + String(fileName) + u"]") {
        Show(0);
    }
    ~LoadProgress() { Show(total_); }
    LoadProgress(const LoadProgress&) = delete;
    LoadProgress& operator=(const LoadProgress&) = delete;

    /// `done` of `total` items; shown where it changes the percentage.
    void Update(Long done, Long total) {
        total_ = std::max(total, 1);
        const Long percent = static_cast<Long>(std::int64_t{done} * 100 / total_);
        if (std::exchange(percent_, percent) != percent) Show(done);
    }

private:
    void Show(Long done) { CurrentUserInterface().Progress(text_, done, total_); }

    String text_;
    Long total_ = 1;
    Long percent_ = 0;
};

}  // namespace tamber

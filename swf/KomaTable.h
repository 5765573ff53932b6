#pragma once

#include <optional>
#include <vector>

#include "platform/types.h"

namespace tamber {

/// Which picture of a koma stands on the next frame.
class KomaTable {
public:
    /// `displayCount`: frames a picture. `identifiers`: the pictures' characters, in order.
    KomaTable(Long displayCount, std::vector<Long> identifiers)
        : displayCount_(displayCount < 1 ? 1 : displayCount),
          identifiers_(std::move(identifiers)) {}

    bool Empty() const { return identifiers_.empty(); }
    /// The list begins anew with its first picture.
    void Rewind() {
        next_ = 0;
        left_ = 1;
    }
    /// The next frame shows a new picture, whatever is left of the present one.
    void BeginSpan() { left_ = 1; }
    /// Goes on by one frame: the character to show from it, or nothing while the present one stays.
    std::optional<Long> Advance() {
        if (left_ > 1) {
            --left_;
            return std::nullopt;
        }
        left_ = displayCount_;
        const Long id = identifiers_[next_];
        next_ = (next_ + 1) % identifiers_.size();
        return id;
    }

    /// Goes on by a span of so many frames at once: the character on the last of them.
    Long AdvanceSpan(Long frames) {
        const auto shown = static_cast<std::size_t>((frames - 1) / displayCount_);
        const std::size_t last = (next_ + shown) % identifiers_.size();
        next_ = (last + 1) % identifiers_.size();
        return identifiers_[last];
    }

private:
    Long displayCount_;
    Long left_ = 1;
    std::size_t next_ = 0;
    std::vector<Long> identifiers_;
};

}  // namespace tamber

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

private:
    Long displayCount_;
    Long left_ = 1;
    std::size_t next_ = 0;
    std::vector<Long> identifiers_;
};

}  // namespace tamber

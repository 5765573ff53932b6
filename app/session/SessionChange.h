#pragma once

#include <cstdint>
#include <functional>

namespace tamber {

/// What of a session can change.
enum class Change : std::uint16_t {
    Project = 1 << 0,      ///< another project is open; stands for all others but `Clipboard`
    Name = 1 << 1,         ///< path of the project
    Saved = 1 << 2,        ///< there came work to save, or none is left
    Stage = 1 << 3,        ///< size, rate or version of the movie
    LibraryRows = 1 << 4,  ///< which symbols the library has, in which order, by which numbers
    Symbol = 1 << 5,       ///< properties of symbols that the library keeps
    Context = 1 << 6,      ///< which timeline is edited, and the size of what the canvas shows
    Rows = 1 << 7,         ///< rows of a timeline
    KeyFrames = 1 << 8,    ///< key frames, and what they hold
    Selection = 1 << 9,    ///< rows, frames and library rows selected, rows that the canvas shows
    Clipboard = 1 << 10,   ///< frames or rows copied
    History = 1 << 11,     ///< what can be undone, and redone
};

/// Some of them.
class SessionChange {
public:
    constexpr SessionChange() = default;
    constexpr SessionChange(Change kind) : kinds_(static_cast<std::uint16_t>(kind)) {}

    constexpr bool Has(Change kind) const {
        return (kinds_ & static_cast<std::uint16_t>(kind)) != 0;
    }
    constexpr bool Empty() const { return kinds_ == 0; }
    constexpr SessionChange& operator|=(SessionChange other) {
        kinds_ |= other.kinds_;
        return *this;
    }
    friend constexpr SessionChange operator|(SessionChange a, SessionChange b) { return a |= b; }
    friend constexpr bool operator==(SessionChange, SessionChange) = default;

private:
    std::uint16_t kinds_ = 0;
};

constexpr SessionChange operator|(Change a, Change b) {
    return SessionChange(a) | SessionChange(b);
}

/// Gets what one command changed, once, behind it.
using SessionWatcher = std::function<void(SessionChange change)>;

}  // namespace tamber

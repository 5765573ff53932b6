#pragma once

#include <map>
#include <optional>
#include <string>

#include "canvas/picture/Placement.h"

namespace tamber {

/// What a tag does to the display list.
struct TimelineStep {
    enum class Kind {
        Remove,
        /// New, unless something stands at the depth.
        Place,
        /// What stands at the depth changes.
        Move,
        /// Another comes in the place of what stands at the depth, and takes over what is not told.
        Replace,
    };

    Kind What = Kind::Remove;
    Long Depth = 0;
    std::shared_ptr<const Character> Shown;
    std::optional<cairo_matrix_t> Matrix{};
    std::optional<SwfColorTransform> Colors{};
    std::optional<Long> Ratio{};
    std::optional<Long> ClipDepth{};
    std::optional<std::vector<PlacedFilter>> Filters{};
    std::optional<BlendMode> Blend{};
    std::optional<String> Name{};
};

/// Frames of a movie or of a sprite. Not for two threads at once, since it keeps what it has
/// worked out.
class Timeline {
public:
    void Add(TimelineStep step) { steps_.push_back(std::move(step)); }
    void EndFrame() { ends_.push_back(steps_.size()); }

    /// Of what is placed most deeply.
    Long Nesting() const;
    /// At least 1.
    Long FrameCount() const { return ends_.empty() ? 1 : static_cast<Long>(ends_.size()); }
    /// What stands on a frame, from 0; beyond the last one that is shown.
    const DisplayList& At(Long frame) const;
    /// What came on the first frame and still stands on the last one, which a new round of the
    /// timeline does not begin anew.
    bool Stays(const Placement& placement) const;

private:
    using Stage = std::map<Long, std::shared_ptr<const Placement>>;

    void Advance() const;
    void Do(const TimelineStep& step) const;

    std::vector<TimelineStep> steps_;
    /// Behind the last step of each frame.
    std::vector<std::size_t> ends_;
    /// The frame that `stage_` and `list_` stand for.
    mutable Long frame_ = -1;
    mutable Stage stage_;
    mutable DisplayList list_;
    /// What stands on the last frame since the first, by depth; once it was asked.
    mutable std::optional<Stage> staying_;
};

}  // namespace tamber

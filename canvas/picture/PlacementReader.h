#pragma once

#include <functional>

#include "canvas/picture/Timeline.h"
#include "swf/MovieFile.h"

namespace tamber {

/// Finds what a movie defined so far by its identifier; null where there is nothing.
using FindCharacter = std::function<std::shared_ptr<const Character>(Long id)>;

/// What a tag does to the display list; nothing for a tag that does nothing to it. Damage raises a
/// RuntimeError.
std::optional<TimelineStep> ReadTimelineStep(const MovieTag& tag, Long version,
                                             const FindCharacter& find);

}  // namespace tamber

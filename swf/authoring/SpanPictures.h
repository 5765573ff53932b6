#pragma once

#include <optional>

#include "swf/authoring/LayerCharacters.h"
#include "swf/authoring/LayerCourse.h"

namespace tamber {

/// The pictures that come up within the span of one key frame.
class SpanPictures {
public:
    SpanPictures(const LayerCourse& course, const KeyFrameStand& stand,
                 const LayerCharacters& characters)
        : course_(course), stand_(stand), characters_(characters) {}

    /// Pictures are placed anew within the span.
    bool Turn() const { return course_.FramesAPicture() != 0; }
    /// The character that comes `offset` frames behind the span's first, or nothing while the
    /// present one stays. A span begins with a new picture.
    std::optional<Long> At(Long offset) const {
        if (!Turn() || offset % course_.FramesAPicture() != 0) return std::nullopt;
        return characters_.Picture(course_.PictureAt(stand_, offset));
    }

private:
    const LayerCourse& course_;
    const KeyFrameStand& stand_;
    const LayerCharacters& characters_;
};

}  // namespace tamber

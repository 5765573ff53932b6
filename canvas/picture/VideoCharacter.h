#pragma once

#include <memory>

#include "canvas/picture/Character.h"
#include "swf/SwfBits.h"

namespace tamber {

/// A video, of which the outline and the name of its instance are shown.
class VideoCharacter : public Character {
public:
    /// Pixels.
    VideoCharacter(Long width, Long height) : width_(width), height_(height) {}

    void Draw(Painter& painter, const PaintState& state) const override;
    PaintBox Bounds(const PaintState& state) const override;

private:
    /// Twips.
    PaintBox Box() const;
    void DrawName(const String& name, Painter& painter, const PaintState& state) const;

    Long width_;
    Long height_;
};

/// Reads a DefineVideoStream from behind the identifier. Damage raises a RuntimeError.
std::shared_ptr<VideoCharacter> ReadVideo(SwfBits bits);

}  // namespace tamber

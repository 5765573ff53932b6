#include "canvas/picture/VideoCharacter.h"

#include "canvas/picture/EditTextCharacter.h"
#include "canvas/picture/Painter.h"
#include "platform/twips.h"

namespace tamber {

PaintBox VideoCharacter::Box() const {
    return {0, 0, double(width_) * TwipsPerPixel, double(height_) * TwipsPerPixel};
}

void VideoCharacter::Draw(Painter& painter, const PaintState& state) const {
    if (state.blMask) return;
    painter.DrawBox(Box(), state);
    if (state.Name != nullptr) DrawName(*state.Name, painter, state);
}

void VideoCharacter::DrawName(const String& name, Painter& painter, const PaintState& state) const {
    EditTextFormat format;
    format.Bounds = Box();
    format.Color = {0, 0, 0, 255};
    EditTextCharacter(std::move(format), {}, name).Draw(painter, state);
}

PaintBox VideoCharacter::Bounds(const PaintState& state) const {
    PaintBox box = Box().Under(state.Matrix);
    box.Grow(1);
    return box;
}

std::shared_ptr<VideoCharacter> ReadVideo(SwfBits bits) {
    bits.GetUI(2);
    const auto width = static_cast<Long>(bits.GetUI(2));
    const auto height = static_cast<Long>(bits.GetUI(2));
    return std::make_shared<VideoCharacter>(width, height);
}

}  // namespace tamber

#include "canvas/picture/SpriteCharacter.h"

#include "canvas/picture/Painter.h"
#include "canvas/picture/TimelineDrawing.h"

namespace tamber {

void SpriteCharacter::Draw(Painter& painter, const PaintState& state) const {
    painter.Draw(timeline_, state);
}

PaintBox SpriteCharacter::Bounds(const PaintState& state) const {
    PaintBox box;
    for (const auto& placement : ShownOf(timeline_, state))
        if (placement->ClipDepth == 0)
            box.Add(BoundsOf(*placement, StateOf(*placement, timeline_, state)));
    return box;
}

}  // namespace tamber

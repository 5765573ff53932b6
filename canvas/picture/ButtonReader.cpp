#include "canvas/picture/ButtonReader.h"

#include "canvas/picture/MovieValues.h"
#include "swf/tags/TagCodes.h"

namespace tamber {

namespace {

enum RecordFlag : std::uint32_t { StateUp = 1, HasFilters = 16, HasBlendMode = 32 };

}  // namespace

std::shared_ptr<SpriteCharacter> ReadButton(SwfBits bits, Long tag, const FindCharacter& find) {
    const bool isTwo = tag == TagCode::DefineButton2;
    if (isTwo) bits.Take(3);
    Timeline timeline;
    while (const std::uint32_t flags = bits.GetUI(1)) {
        TimelineStep step;
        step.What = TimelineStep::Kind::Replace;
        step.Shown = find(static_cast<Long>(bits.GetUI(2)));
        step.Depth = static_cast<Long>(bits.GetUI(2));
        step.Matrix = ToCairo(bits.GetMatrix());
        if (isTwo) step.Colors = bits.GetCXForm(true);
        if (isTwo && (flags & HasFilters) != 0) step.Filters = ReadFilterList(bits);
        if (isTwo && (flags & HasBlendMode) != 0)
            step.Blend = static_cast<BlendMode>(bits.GetUI(1));
        if ((flags & StateUp) != 0 && step.Shown) timeline.Add(std::move(step));
    }
    timeline.EndFrame();
    return std::make_shared<SpriteCharacter>(std::move(timeline));
}

}  // namespace tamber

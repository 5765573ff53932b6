#include "canvas/picture/PlacementReader.h"

#include "canvas/picture/MovieValues.h"
#include "swf/tags/TagCodes.h"

namespace tamber {

namespace {

enum PlaceFlag : std::uint32_t {
    Moves = 1,
    HasCharacter = 2,
    HasMatrix = 4,
    HasColors = 8,
    HasRatio = 16,
    HasName = 32,
    HasClipDepth = 64,
};

/// Of the second byte of flags in PlaceObject3.
enum PlaceFlag3 : std::uint32_t { HasFilters = 1, HasBlendMode = 2, HasClassName = 8 };

TimelineStep ReadPlaceObject(SwfBits bits, const FindCharacter& find) {
    TimelineStep step;
    step.What = TimelineStep::Kind::Place;
    step.Shown = find(static_cast<Long>(bits.GetUI(2)));
    step.Depth = static_cast<Long>(bits.GetUI(2));
    step.Matrix = ToCairo(bits.GetMatrix());
    if (!bits.IsEmpty()) step.Colors = bits.GetCXForm(false);
    return step;
}

TimelineStep::Kind KindOfPlacement(std::uint32_t flags) {
    if ((flags & HasCharacter) == 0) return TimelineStep::Kind::Move;
    return (flags & Moves) != 0 ? TimelineStep::Kind::Replace : TimelineStep::Kind::Place;
}

TimelineStep ReadPlaceObject2(SwfBits bits, bool isThree, Long version, const FindCharacter& find) {
    const std::uint32_t flags = bits.GetUI(1);
    const std::uint32_t flags3 = isThree ? bits.GetUI(1) : 0;
    TimelineStep step;
    step.What = KindOfPlacement(flags);
    step.Depth = static_cast<Long>(bits.GetUI(2));
    if ((flags3 & HasClassName) != 0) bits.GetString(version, 0, true);
    if ((flags & HasCharacter) != 0) step.Shown = find(static_cast<Long>(bits.GetUI(2)));
    if ((flags & HasMatrix) != 0) step.Matrix = ToCairo(bits.GetMatrix());
    if ((flags & HasColors) != 0) step.Colors = bits.GetCXForm(true);
    if ((flags & HasRatio) != 0) step.Ratio = static_cast<Long>(bits.GetUI(2));
    if ((flags & HasName) != 0) step.Name = bits.GetString(version, 0, true);
    if ((flags & HasClipDepth) != 0) step.ClipDepth = static_cast<Long>(bits.GetUI(2));
    if ((flags3 & HasFilters) != 0) step.Filters = ReadFilterList(bits);
    if ((flags3 & HasBlendMode) != 0) step.Blend = static_cast<BlendMode>(bits.GetUI(1));
    return step;
}

TimelineStep ReadRemoveObject(SwfBits bits, bool hasId) {
    TimelineStep step;
    if (hasId) bits.GetUI(2);
    step.Depth = static_cast<Long>(bits.GetUI(2));
    return step;
}

}  // namespace

std::optional<TimelineStep> ReadTimelineStep(const MovieTag& tag, Long version,
                                             const FindCharacter& find) {
    const SwfBits bits(tag.Body);
    switch (tag.Code) {
        case TagCode::PlaceObject:
            return ReadPlaceObject(bits, find);
        case TagCode::PlaceObject2:
        case TagCode::PlaceObject3:
            return ReadPlaceObject2(bits, tag.Code == TagCode::PlaceObject3, version, find);
        case TagCode::RemoveObject:
        case TagCode::RemoveObject2:
            return ReadRemoveObject(bits, tag.Code == TagCode::RemoveObject);
        default:
            return std::nullopt;
    }
}

}  // namespace tamber

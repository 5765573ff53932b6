#include "swf/authoring/SnapshotWriter.h"

#include <utility>

#include "document/elements/SymbolKinds.h"
#include "document/records/clsPropertyKoma.h"
#include "swf/authoring/FramePlacement.h"
#include "swf/authoring/MovieLimits.h"
#include "swf/authoring/SpriteDefinition.h"

namespace tamber {

PlacedTags SnapshotWriter::WriteFrameSnapshot() {
    build_.Movie.FrameCount(1);
    WriteTimeline({build_.Movie, *snapshot_.Layers, {}});
    return std::exchange(placed_, {});
}

Long SnapshotWriter::GetNewSpriteEdit(clsSWFAdmin& admin, const clsPropertySprite& sprite,
                                      Long frame) {
    const auto inner = NewInner(admin, sprite.Width, sprite.height, 1);
    WriteTimeline({*inner, *sprite.colLayer, OriginOf(sprite), frame});
    return AddSprite(admin, inner, frame);
}

bool SnapshotWriter::Shows(const clsLayer& layer) const {
    return !FramePlacement(layer, 1).Empty();
}

std::vector<const clsSymbolData*> SnapshotWriter::PicturesOf(const clsLayer& layer,
                                                             bool isMain) const {
    std::vector<const clsSymbolData*> pictures;
    for (const auto& koma : *layer.SymbolData()->Property<clsPropertyKoma>()->colKomas)
        if (SymbolDefiner::HasCharacter(*koma, build_.Version())) pictures.push_back(koma.get());
    if (pictures.empty()) return {};
    const auto picture = FramePlacement(layer, FrameOf(isMain)).KomaPicture();
    return {pictures[static_cast<std::size_t>(picture) % pictures.size()]};
}

bool SnapshotWriter::IsWalked(const Timeline& timeline, Long index, Long depth, Long depths) const {
    // Of a movie that is refused for its many rows, the canvas shows those that fit.
    if (depth < 1 || depth + depths > BottomDepth + MaxDepths) return false;
    if (timeline.IsMain() && (index < snapshot_.FirstRow || index > snapshot_.LastRow))
        return false;
    return !FramePlacement(*timeline.Layers(index), FrameOf(timeline.IsMain())).Empty();
}

void SnapshotWriter::Place(const Timeline& timeline, Long index, const LayerPlace& place,
                           LayerCharacters& characters) {
    const FramePlacement frame(*timeline.Layers(index), FrameOf(timeline.IsMain()));
    auto tag = frame.Place(timeline.Admin, place, characters);
    tag->LayerIndex = index;
    // There is nothing else that a video without pictures is known by.
    const clsLayer& layer = *timeline.Layers(index);
    const Long kind = layer.SymbolData()->eType();
    if (kind == KindMovie || kind == KindMovieEmp)
        tag->Name = layer.InstanceName.empty() ? layer.SymbolData()->Value() : layer.InstanceName;
    if (timeline.IsMain()) placed_.push_back(std::move(tag));
}

}  // namespace tamber

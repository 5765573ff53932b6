#include "swf/authoring/LayerCourse.h"

#include <algorithm>
#include <vector>

#include "document/elements/SymbolKinds.h"
#include "document/elements/clsObjVector.h"
#include "document/records/clsPropertyKoma.h"
#include "document/symbols/clsSymbolData.h"

namespace tamber {

namespace {

/// The last key frame that has begun by a frame, 0 when there is none.
Long LastBegun(const clsLayer& layer, Long frame) {
    const auto after =
        std::upper_bound(layer.colObject.begin(), layer.colObject.end(), frame,
                         [](Long at, const auto& object) { return at < object->StartFrame(); });
    return static_cast<Long>(after - layer.colObject.begin());
}

Long FramesAPictureOf(const clsSymbolData& symbol) {
    if (symbol.eType() != KindKoma) return 0;
    return std::max(symbol.Property<clsPropertyKoma>()->DispCount, 1);
}

}  // namespace

LayerCourse::LayerCourse(const clsLayer& layer)
    : layer_(layer),
      drawing_(layer.SymbolData()->eType() == KindVector),
      framesAPicture_(FramesAPictureOf(*layer.SymbolData())) {}

Long LayerCourse::SpanOf(Long index) const {
    const clsLayerObject& object = *layer_.Object(index);
    if (index == layer_.ObjectCount()) return object.DispCount();
    return std::min(object.DispCount(),
                    layer_.Object(index + 1)->StartFrame() - object.StartFrame());
}

bool LayerCourse::OpensTween(Long index) const {
    const clsLayerObject& object = *layer_.Object(index);
    return object.blVisible && object.blTween && index < layer_.ObjectCount();
}

bool LayerCourse::IsDeformed(Long index) const {
    const auto* element = layer_.Object(index)->ObjectAs<clsObjVector>();
    return element != nullptr && element->blFreeTransEx();
}

/// Its outline is deformed, or its tween ends so.
bool LayerCourse::NeedsOwnCharacter(Long index) const {
    return drawing_ && (IsDeformed(index) || (OpensTween(index) && IsDeformed(index + 1)));
}

std::int64_t LayerCourse::PictureAt(const KeyFrameStand& stand, Long offset) const {
    return framesAPicture_ == 0 ? 0 : stand.PicturesBefore + offset / framesAPicture_;
}

std::int64_t LayerCourse::PicturesIn(const KeyFrameStand& stand) const {
    const Long span = std::max(SpanOf(stand.Index), stand.blTween ? 1 : 0);
    return (std::int64_t{span} + framesAPicture_ - 1) / framesAPicture_;
}

/// No frame lies between the key frame at `index` and the next.
bool LayerCourse::ReachesNext(Long index) const {
    if (OpensTween(index)) return true;
    const clsLayerObject& object = *layer_.Object(index);
    return object.blVisible && index < layer_.ObjectCount() &&
           object.StartFrame() + SpanOf(index) >= layer_.Object(index + 1)->StartFrame();
}

/// The end of a morph shows its outline already; other deformed key frames get a character of their
/// own, and a plain one after them the layer's.
KeyFrameStand LayerCourse::Next(const KeyFrameStand& before, Long index) const {
    KeyFrameStand stand;
    stand.Index = index;
    stand.blShown = layer_.Object(index)->blVisible;
    stand.blAnew = !before.blStays;
    stand.blTween = OpensTween(index);
    if (before.Owner != 0 && before.blTween && !stand.blTween)
        stand.Owner = before.Owner;
    else if (NeedsOwnCharacter(index))
        stand.Owner = index;
    stand.blSame = !stand.blAnew && stand.Owner == before.Owner;
    stand.blEnded = stand.blSame && (before.blTween || before.blEnded);
    // A character of a key frame's own goes with its span.
    stand.blStays = stand.blTween || (stand.Owner == 0 && ReachesNext(index));
    if (!stand.blAnew && framesAPicture_ != 0)
        stand.PicturesBefore = before.PicturesBefore + PicturesIn(before);
    return stand;
}

/// The key frame before `index` when what stood on it matters there, else 0.
Long LayerCourse::PastOf(Long index) const {
    const bool matters = framesAPicture_ != 0 || (drawing_ && !OpensTween(index));
    if (!matters) return 0;
    do --index;
    while (index > 0 && layer_.Object(index)->Placement() == nullptr);
    return index > 0 && ReachesNext(index) ? index : 0;
}

KeyFrameStand LayerCourse::At(Long index) const {
    std::vector<Long> course;
    for (Long i = index; i > 0; i = PastOf(i)) course.push_back(i);
    KeyFrameStand stand;
    for (auto i = course.rbegin(); i != course.rend(); ++i) stand = Next(stand, *i);
    return stand;
}

KeyFrameStand LayerCourse::On(Long frame) const {
    const Long index = LastBegun(layer_, frame);
    if (index == 0) return {};
    const clsLayerObject& object = *layer_.Object(index);
    if (object.Placement() == nullptr || !object.blVisible) return {};
    // A tween that ends before the next key frame begins holds its last place.
    return object.CheckFrame(frame) || OpensTween(index) ? At(index) : KeyFrameStand{};
}

}  // namespace tamber

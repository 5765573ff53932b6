#include "swf/authoring/LayerCharacter.h"

#include <algorithm>

#include "document/elements/SymbolKinds.h"
#include "document/elements/clsObjVector.h"
#include "document/records/clsPropertyVector.h"
#include "document/symbols/clsSymbolData.h"

namespace tamber {

Long SpanOf(const clsLayer& layer, Long index) {
    const clsLayerObject& object = *layer.Object(index);
    if (index == layer.ObjectCount()) return object.DispCount();
    return std::min(object.DispCount(),
                    layer.Object(index + 1)->StartFrame() - object.StartFrame());
}

bool OpensTween(const clsLayer& layer, Long index) {
    const clsLayerObject& object = *layer.Object(index);
    return object.blVisible && object.blTween && index < layer.ObjectCount();
}

bool IsDeformed(const clsLayer& layer, Long index, const LayerCharacter& character) {
    const auto deformed = [&layer](Long i) {
        const auto* element = layer.Object(i)->ObjectAs<clsObjVector>();
        return element != nullptr && element->blFreeTransEx();
    };
    return character.Deform &&
           (deformed(index) || (OpensTween(layer, index) && deformed(index + 1)));
}

DeformedCharacter DeformedAt(const clsLayer& layer, Long index, const LayerCharacter& character) {
    const clsLayerObject* end = OpensTween(layer, index) ? layer.Object(index + 1).get() : nullptr;
    return character.Deform(*layer.Object(index), end);
}

Tween TweenOf(const clsLayer& layer, Long index, const LayerCharacter& character) {
    const clsLayerObject& start = *layer.Object(index);
    Tween tween;
    tween.Frame = start.StartFrame();
    tween.Span = SpanOf(layer, index);
    tween.Element = start.Placement();
    tween.blVector = layer.SymbolData()->eTypeEx() == KindVector;
    const auto* drawing = layer.SymbolData()->Property<clsPropertyVector>();
    tween.blMorph = drawing != nullptr && drawing->MorphSymbol() != nullptr;
    tween.Koma = character.Koma;
    return tween;
}

TweenPath PathOf(const clsLayerObject& start, const clsLayerObject& end, TimelineOrigin origin) {
    return {*start.Placement(), *end.Placement(), origin.X, origin.Y};
}

}  // namespace tamber

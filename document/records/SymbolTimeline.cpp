#include "document/records/SymbolTimeline.h"

#include <utility>

#include "document/records/clsPropertyClass.h"
#include "document/records/clsPropertySprite.h"

namespace tamber {

std::shared_ptr<Collection<clsLayer>> TimelineOf(const clsSymbolData& symbol) {
    if (const auto* sprite = symbol.Property<clsPropertySprite>()) return sprite->colLayer;
    if (const auto* record = symbol.Property<clsPropertyClass>()) return record->colLayer;
    return nullptr;
}

void SetTimelineOf(const clsSymbolData& symbol, std::shared_ptr<Collection<clsLayer>> layers) {
    if (auto* sprite = symbol.Property<clsPropertySprite>())
        sprite->colLayer = std::move(layers);
    else if (auto* record = symbol.Property<clsPropertyClass>())
        record->colLayer = std::move(layers);
}

std::shared_ptr<clsUndoRedo>* OwnHistory(const clsSymbolData& symbol) {
    if (auto* sprite = symbol.Property<clsPropertySprite>()) return &sprite->cUndoRedo;
    if (auto* record = symbol.Property<clsPropertyClass>()) return &record->cUndoRedo;
    return nullptr;
}

}  // namespace tamber

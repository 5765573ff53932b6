#include "document/records/clsPropertySprite.h"

#include "document/records/SymbolContents.h"
#include "document/symbols/Nesting.h"

namespace tamber {

void clsPropertySprite::CopyTo(clsPropertyData& target) const {
    CopyRecord(*this, target);
    auto layers = std::make_shared<Collection<clsLayer>>();
    for (const auto& layer : *colLayer) layers->Add(layer->Copy());
    NestLayers(*layers);
    auto& copy = dynamic_cast<clsPropertySprite&>(target);
    copy.colLayer = std::move(layers);
    copy.cUndoRedo.reset();
}

bool clsPropertySprite::CkHasLoop(const clsSymbolData& symbol) const {
    return ShowsSymbol(*colLayer, symbol);
}

}  // namespace tamber

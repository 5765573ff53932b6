#include "document/records/clsPropertySprite.h"

#include "document/records/SymbolContents.h"
#include "document/symbols/Nesting.h"

namespace tamber {

void clsPropertySprite::Load(clsCSV& csv) {
    SpriteName = csv.TakeText();
    Width = csv.TakeLong();
    height = csv.TakeLong();
    baseX = csv.TakeLong();
    baseY = csv.TakeLong();
    if (csv.Value().empty()) return;
    bl9Scale = csv.TakeBoolean();
    GridLeft = csv.TakeLong();
    GridRight = csv.TakeLong();
    GridTop = csv.TakeLong();
    GridBottom = csv.TakeLong();
}

void clsPropertySprite::Save(clsCSV& csv) const {
    csv.Put(SpriteName);
    csv.Put(Width);
    csv.Put(height);
    csv.Put(baseX);
    csv.Put(baseY);
    csv.Put(bl9Scale);
    csv.Put(GridLeft);
    csv.Put(GridRight);
    csv.Put(GridTop);
    csv.Put(GridBottom);
}

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

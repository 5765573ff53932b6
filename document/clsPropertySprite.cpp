#include "document/clsPropertySprite.h"

#include <unordered_set>
#include <vector>

#include "document/Project.h"
#include "document/clsPropertyButton.h"
#include "document/clsPropertyKoma.h"

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
    std::unordered_set<const clsSymbolData*> seen;
    std::vector<std::shared_ptr<clsSymbolData>> open;
    const auto visit = [&](const std::shared_ptr<clsSymbolData>& shown) {
        if (shown && seen.insert(shown.get()).second) open.push_back(shown);
    };
    for (const auto& layer : *colLayer) visit(layer->SymbolData());
    while (!open.empty()) {
        const std::shared_ptr<clsSymbolData> shown = open.back();
        open.pop_back();
        if (shown.get() == &symbol) return true;
        if (const auto* sprite = shown->Property<clsPropertySprite>()) {
            for (const auto& layer : *sprite->colLayer) visit(layer->SymbolData());
        } else if (const auto* button = shown->Property<clsPropertyButton>()) {
            visit(button->UpSymbol());
            visit(button->DownSymbol());
            visit(button->OverSymbol());
            visit(button->HitTestSymbol());
        } else if (const auto* koma = shown->Property<clsPropertyKoma>()) {
            for (const auto& picture : *koma->colKomas) visit(picture);
        }
    }
    return false;
}

}  // namespace tamber

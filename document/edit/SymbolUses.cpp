#include "document/edit/SymbolUses.h"

#include "document/records/SymbolTimeline.h"

namespace tamber {

SymbolUses::SymbolUses(const Project& project, const SymbolList& leaving) {
    SymbolSet gone;
    for (const auto& symbol : leaving) {
        gone.insert(symbol.get());
        if (symbol->ID > 0) owners_[symbol->ID];
    }
    AddTimeline(nullptr, *project.colMainLayer);
    for (const Long kind : {KindSprite, KindClass})
        for (const auto& symbol : *project.colSymbol)
            if (symbol->eType() == kind && !gone.contains(symbol.get()))
                AddTimeline(symbol, *TimelineOf(*symbol));
}

void SymbolUses::AddTimeline(const std::shared_ptr<clsSymbolData>& owner,
                             const Collection<clsLayer>& layers) {
    for (const auto& layer : layers) {
        const auto found = owners_.find(layer->SymbolData()->ID);
        if (found == owners_.end()) continue;
        SymbolList& owners = found->second;
        if (owners.empty() || owners.back() != owner) owners.push_back(owner);
    }
}

const SymbolList& SymbolUses::Of(Long id) const {
    static const SymbolList none;
    const auto found = owners_.find(id);
    return found == owners_.end() ? none : found->second;
}

std::vector<Long> RemoveLayersOfSymbol(Collection<clsLayer>& layers, Long id) {
    std::vector<Long> rows;
    Long row = 0;
    for (const auto& layer : layers) {
        ++row;
        if (layer->SymbolData()->ID != id) continue;
        rows.push_back(row);
        if (const auto folder = layer->ParentFolder()) folder->AddInFolder(-1);
    }
    if (!rows.empty())
        layers.RemoveIf([id](const auto& layer) { return layer->SymbolData()->ID == id; });
    return rows;
}

}  // namespace tamber

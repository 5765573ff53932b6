#include "document/records/SymbolContents.h"

#include <unordered_set>
#include <vector>

namespace tamber {

namespace {

/// Follows what symbols show until it meets one of them.
class SymbolWalk {
public:
    void Open(const clsSymbolData& symbol) {
        if (seen_.insert(&symbol).second) open_.push_back(&symbol);
    }
    bool Reaches(const clsSymbolData& symbol) {
        while (!open_.empty()) {
            const clsSymbolData* shown = open_.back();
            open_.pop_back();
            if (shown == &symbol) return true;
            ForEachShown(*shown, [this](const clsSymbolData& next) { Open(next); });
        }
        return false;
    }

private:
    std::unordered_set<const clsSymbolData*> seen_;
    std::vector<const clsSymbolData*> open_;
};

using SymbolSet = std::unordered_set<const clsSymbolData*>;

void SetKomaSizeOf(const clsSymbolData& symbol, SymbolSet& done) {
    if (!done.insert(&symbol).second) return;
    // A sprite has a size of its own.
    if (symbol.Property<clsPropertySprite>() != nullptr) return;
    ForEachShown(symbol, [&done](const clsSymbolData& shown) { SetKomaSizeOf(shown, done); });
    if (auto* koma = symbol.Property<clsPropertyKoma>()) koma->SetSize();
}

}  // namespace

void SetKomaSizes(const Collection<clsSymbolData>& library) {
    SymbolSet done;
    for (const auto& symbol : library) SetKomaSizeOf(*symbol, done);
}

bool ShowsSymbol(const clsSymbolData& outer, const clsSymbolData& symbol) {
    SymbolWalk walk;
    walk.Open(outer);
    return walk.Reaches(symbol);
}

bool ShowsSymbol(const Collection<clsLayer>& layers, const clsSymbolData& symbol) {
    SymbolWalk walk;
    for (const auto& layer : layers)
        if (layer->SymbolData()) walk.Open(*layer->SymbolData());
    return walk.Reaches(symbol);
}

}  // namespace tamber

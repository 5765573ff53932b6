#include "document/SymbolContents.h"

#include <unordered_set>
#include <vector>

#include "document/clsPropertyButton.h"
#include "document/clsPropertyKoma.h"
#include "document/clsPropertySprite.h"

namespace tamber {

namespace {

/// Hands over each symbol that a symbol shows itself, null where a reference is empty.
template <class Visit>
void ForEachShown(const clsSymbolData& symbol, Visit visit) {
    if (const auto* sprite = symbol.Property<clsPropertySprite>()) {
        for (const auto& layer : *sprite->colLayer) visit(layer->SymbolData().get());
    } else if (const auto* button = symbol.Property<clsPropertyButton>()) {
        visit(button->UpSymbol().get());
        visit(button->DownSymbol().get());
        visit(button->OverSymbol().get());
        visit(button->HitTestSymbol().get());
    } else if (const auto* koma = symbol.Property<clsPropertyKoma>()) {
        for (const auto& picture : *koma->colKomas) visit(picture.get());
    }
}

/// Follows what symbols show until it meets one of them.
class SymbolWalk {
public:
    void Open(const clsSymbolData* symbol) {
        if (symbol != nullptr && seen_.insert(symbol).second) open_.push_back(symbol);
    }
    bool Reaches(const clsSymbolData& symbol) {
        while (!open_.empty()) {
            const clsSymbolData* shown = open_.back();
            open_.pop_back();
            if (shown == &symbol) return true;
            ForEachShown(*shown, [this](const clsSymbolData* next) { Open(next); });
        }
        return false;
    }

private:
    std::unordered_set<const clsSymbolData*> seen_;
    std::vector<const clsSymbolData*> open_;
};

}  // namespace

bool ShowsSymbol(const clsSymbolData& outer, const clsSymbolData& symbol) {
    SymbolWalk walk;
    walk.Open(&outer);
    return walk.Reaches(symbol);
}

bool ShowsSymbol(const Collection<clsLayer>& layers, const clsSymbolData& symbol) {
    SymbolWalk walk;
    for (const auto& layer : layers) walk.Open(layer->SymbolData().get());
    return walk.Reaches(symbol);
}

}  // namespace tamber

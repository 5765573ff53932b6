#pragma once

#include "document/records/clsPropertyButton.h"
#include "document/records/clsPropertyKoma.h"
#include "document/records/clsPropertySprite.h"
#include "document/symbols/clsLayer.h"
#include "document/symbols/clsSymbolData.h"
#include "platform/Collection.h"

namespace tamber {

/// Hands over each symbol that a symbol itself shows: in its timeline, in a state of a button or as
/// a picture of a koma.
template <class Visit>
void ForEachShown(const clsSymbolData& symbol, Visit visit) {
    const auto visitOne = [&visit](const std::shared_ptr<clsSymbolData>& shown) {
        if (shown) visit(*shown);
    };
    if (const auto* sprite = symbol.Property<clsPropertySprite>()) {
        for (const auto& layer : *sprite->colLayer) visitOne(layer->SymbolData());
    } else if (const auto* button = symbol.Property<clsPropertyButton>()) {
        visitOne(button->UpSymbol());
        visitOne(button->DownSymbol());
        visitOne(button->OverSymbol());
        visitOne(button->HitTestSymbol());
    } else if (const auto* koma = symbol.Property<clsPropertyKoma>()) {
        for (const auto& picture : *koma->colKomas) visitOne(picture);
    }
}

/// Works out the sizes of all komas of a library whose symbols do not show themselves, those first
/// that others show.
void SetKomaSizes(const Collection<clsSymbolData>& library);

/// True when `outer` is the symbol, or shows it at any depth. A timeline of `symbol` cannot show
/// `outer` then.
bool ShowsSymbol(const clsSymbolData& outer, const clsSymbolData& symbol);
/// The same for what layers show.
bool ShowsSymbol(const Collection<clsLayer>& layers, const clsSymbolData& symbol);

}  // namespace tamber

#include "document/edit/SymbolReferences.h"

#include <algorithm>
#include <unordered_map>

#include "document/symbols/clsLayer.h"
#include "document/records/clsPropertyButton.h"
#include "document/records/clsPropertyKoma.h"
#include "document/records/clsPropertyLinkSymbol.h"
#include "document/records/clsPropertySprite.h"
#include "document/records/clsPropertyText.h"
#include "document/records/clsPropertyVector.h"

namespace tamber {

namespace {

SymbolList ReferencesOf(const clsPropertyData* record) {
    if (const auto* drawing = dynamic_cast<const clsPropertyVector*>(record))
        return {drawing->MorphSymbol()};
    if (const auto* text = dynamic_cast<const clsPropertyText*>(record))
        return {text->FitShapeSymbol()};
    if (const auto* button = dynamic_cast<const clsPropertyButton*>(record))
        return {button->HitTestSymbol(), button->DownSymbol(), button->OverSymbol(),
                button->UpSymbol()};
    SymbolList references;
    if (const auto* koma = dynamic_cast<const clsPropertyKoma*>(record))
        references.assign(koma->colKomas->begin(), koma->colKomas->end());
    if (const auto* sprite = dynamic_cast<const clsPropertySprite*>(record))
        for (const auto& layer : *sprite->colLayer) references.push_back(layer->SymbolData());
    if (const auto* link = dynamic_cast<const clsPropertyLinkSymbol*>(record))
        return ReferencesOf(link->objPropertyData.get());
    return references;
}

/// The references that a symbol cannot lose, and how many of them it may lose before it falls.
struct Support {
    SymbolList References;
    std::size_t Spare = 0;
};

Support SupportOf(const clsSymbolData& symbol) {
    if (const auto* button = symbol.Property<clsPropertyButton>()) return {{button->UpSymbol()}};
    if (symbol.Property<clsPropertyLinkSymbol>() != nullptr) return {ReferencesOf(symbol)};
    if (const auto* koma = symbol.Property<clsPropertyKoma>(); koma && !koma->colKomas->Empty())
        return {ReferencesOf(symbol), static_cast<std::size_t>(koma->colKomas->Count()) - 1};
    return {};
}

}  // namespace

SymbolList ReferencesOf(const clsSymbolData& symbol) {
    return ReferencesOf(symbol.PropertyData().get());
}

SymbolList FallenWith(const Collection<clsSymbolData>& library, const SymbolList& leaving) {
    std::unordered_map<const clsSymbolData*, SymbolList> supported;
    std::unordered_map<const clsSymbolData*, std::size_t> spare;
    for (const auto& symbol : library) {
        Support support = SupportOf(*symbol);
        spare[symbol.get()] = support.Spare;
        for (const auto& reference : support.References)
            if (reference) supported[reference.get()].push_back(symbol);
    }
    SymbolSet gone;
    for (const auto& symbol : leaving) gone.insert(symbol.get());
    SymbolList open = leaving;
    SymbolList fallen;
    while (!open.empty()) {
        const std::shared_ptr<clsSymbolData> lost = std::move(open.back());
        open.pop_back();
        for (const auto& symbol : supported[lost.get()]) {
            if (gone.contains(symbol.get()) || spare[symbol.get()]-- > 0) continue;
            gone.insert(symbol.get());
            fallen.push_back(symbol);
            open.push_back(symbol);
        }
    }
    return fallen;
}

SymbolList ClearReferences(const Collection<clsSymbolData>& library, const SymbolSet& gone) {
    const auto isGone = [&gone](const std::shared_ptr<clsSymbolData>& symbol) {
        return gone.contains(symbol.get());
    };
    SymbolList texts;
    for (const auto& symbol : library) {
        if (auto* text = symbol->Property<clsPropertyText>()) {
            if (!isGone(text->FitShapeSymbol())) continue;
            text->FitShapeSymbol(nullptr);
            texts.push_back(symbol);
        } else if (auto* drawing = symbol->Property<clsPropertyVector>()) {
            if (isGone(drawing->MorphSymbol())) drawing->MorphSymbol(nullptr);
        } else if (auto* button = symbol->Property<clsPropertyButton>()) {
            if (isGone(button->HitTestSymbol())) button->HitTestSymbol(nullptr);
            if (isGone(button->DownSymbol())) button->DownSymbol(nullptr);
            if (isGone(button->OverSymbol())) button->OverSymbol(nullptr);
        } else if (auto* koma = symbol->Property<clsPropertyKoma>()) {
            if (koma->colKomas->RemoveIf(isGone) > 0) koma->SetSize();
        }
    }
    return texts;
}

}  // namespace tamber

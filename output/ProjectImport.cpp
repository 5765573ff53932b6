#include "output/ProjectImport.h"

#include <algorithm>
#include <set>
#include <unordered_set>
#include <utility>

#include "canvas/timeline/RowRange.h"
#include "canvas/timeline/SymbolRows.h"
#include "document/edit/SymbolIdEdit.h"
#include "document/edit/SymbolLibrary.h"
#include "document/elements/clsLayerFolder.h"
#include "document/records/clsPropertyButton.h"
#include "document/records/clsPropertyKoma.h"
#include "document/records/clsPropertySprite.h"
#include "document/records/clsPropertySymbolFolder.h"
#include "document/records/clsPropertyText.h"
#include "document/records/clsPropertyVector.h"
#include "platform/UserInterface.h"

namespace tamber {

namespace {

/// Which of so many rows are chosen.
std::vector<bool> ChosenOf(const std::optional<std::vector<Long>>& choice, Long count) {
    std::vector<bool> chosen(static_cast<std::size_t>(count) + 1, !choice);
    if (!choice) return chosen;
    for (const Long row : *choice)
        if (row >= 1 && row <= count) chosen[static_cast<std::size_t>(row)] = true;
    return chosen;
}

/// The innermost folder around a row for which `comes` holds, or null.
template <class Row, class Comes>
std::shared_ptr<Row> FolderThatComes(const Row& row, Comes comes) {
    auto folder = row.ParentFolder();
    while (folder && !comes(folder)) folder = folder->ParentFolder();
    return folder;
}

bool IsInLibrary(const clsSymbolData& symbol) {
    return KindOf(symbol.eType()).FixedName.empty();
}

}  // namespace

ProjectImport::ProjectImport(Project& target, Project incoming, ImportOptions options,
                             const ProjectAssets& assets)
    : target_(target),
      incoming_(std::move(incoming)),
      options_(std::move(options)),
      assets_(assets) {}

Collection<clsLayer> ProjectImport::Run() {
    ChooseSymbols();
    ReplaceFonts();
    Collection<clsLayer> layers;
    for (const auto& symbol : symbols_) MapReferences(*symbol);
    if (!options_.chkNoMain) layers = TakeMainLayers();
    if (options_.chkSprite && !options_.chkNoMain) AddSprite(std::exchange(layers, {}));
    const Long first = target_.colSymbol->Count() + 1;
    AddToLibrary();
    Renumber(first);
    return layers;
}

/// An existing symbol that an incoming one repeats, or null. Classes share one number and are told
/// apart by their names.
std::shared_ptr<clsSymbolData> ProjectImport::Repeated(const clsSymbolData& symbol) const {
    if (!options_.blNotRepetition || symbol.eType() == KindSymbolFolder) return nullptr;
    const auto found = existing_.find({symbol.ID, symbol.eType()});
    if (found == existing_.end()) return nullptr;
    for (const auto& known : found->second)
        if (symbol.ID > 0 || known->Value() == symbol.Value()) return known;
    return nullptr;
}

void ProjectImport::ChooseSymbols() {
    for (const auto& known : *target_.colSymbol)
        existing_[{known->ID, known->eType()}].push_back(known);
    const Collection<clsSymbolData>& all = *incoming_.colSymbol;
    const std::vector<bool> chosen = ChosenOf(options_.Symbols, all.Count());
    for (Long row = 1; row <= all.Count(); ++row) {
        const auto& symbol = all(row);
        if (!chosen[static_cast<std::size_t>(row)]) continue;
        const auto known = Repeated(*symbol);
        newOf_.emplace(symbol.get(), known ? known : symbol);
        if (!known) symbols_.push_back(symbol);
    }
}

void ProjectImport::ReplaceFonts() const {
    std::set<String> told;
    for (const auto& symbol : symbols_) {
        auto* text = symbol->Property<clsPropertyText>();
        if (text == nullptr || text->FontName.starts_with(u'_') || text->FontName == LastFont ||
            assets_.FontAvailable(text->FontName))
            continue;
        if (told.insert(text->FontName).second)
            ShowMessage(u"「" + text->FontName + u"」が見つかりません。\r\n「" + String(LastFont) +
                        u"」へ変更します。");
        text->FontName = LastFont;
        assets_.SetTextSize(*symbol);
    }
}

std::shared_ptr<clsSymbolData> ProjectImport::NewOf(
    const std::shared_ptr<clsSymbolData>& old) const {
    const auto found = newOf_.find(old.get());
    return found == newOf_.end() ? nullptr : found->second;
}

void ProjectImport::MapReferences(clsSymbolData& symbol) const {
    if (auto* text = symbol.Property<clsPropertyText>()) {
        const auto shape = text->FitShapeSymbol();
        text->FitShapeSymbol(NewOf(shape));
        if (shape && !text->FitShapeSymbol()) assets_.SetTextSize(symbol);
    } else if (auto* vector = symbol.Property<clsPropertyVector>()) {
        vector->MorphSymbol(NewOf(vector->MorphSymbol()));
    } else if (auto* button = symbol.Property<clsPropertyButton>()) {
        button->UpSymbol(NewOf(button->UpSymbol()));
        button->DownSymbol(NewOf(button->DownSymbol()));
        button->OverSymbol(NewOf(button->OverSymbol()));
        button->HitTestSymbol(NewOf(button->HitTestSymbol()));
    } else if (auto* koma = symbol.Property<clsPropertyKoma>()) {
        auto pictures = std::make_shared<Collection<clsSymbolData>>();
        for (const auto& picture : *koma->colKomas)
            if (auto mapped = NewOf(picture)) pictures->Add(std::move(mapped));
        koma->colKomas = std::move(pictures);
        koma->SetSize();
    } else if (auto* sprite = symbol.Property<clsPropertySprite>()) {
        const std::vector<bool> all = ChosenOf(std::nullopt, sprite->colLayer->Count());
        *sprite->colLayer = MapLayers(*sprite->colLayer, all);
    }
}

Collection<clsLayer> ProjectImport::MapLayers(const Collection<clsLayer>& layers,
                                              const std::vector<bool>& chosen) const {
    Collection<clsLayer> mapped;
    std::unordered_set<const clsLayer*> comes;
    for (Long row = 1; row <= layers.Count(); ++row) {
        const auto& layer = layers(row);
        if (!chosen[static_cast<std::size_t>(row)] || IsBackground(*layer)) continue;
        if (IsInLibrary(*layer->SymbolData())) {
            const auto symbol = NewOf(layer->SymbolData());
            if (!symbol) continue;
            layer->SymbolData(symbol);
        }
        const auto folder = FolderThatComes(
            *layer, [&comes](const auto& outer) { return comes.contains(outer.get()); });
        if (auto* state = layer->Folder()) state->LayerCount = 0;
        layer->ParentFolder(folder);
        if (folder) folder->AddInFolder(1);
        comes.insert(layer.get());
        mapped.Add(layer);
    }
    return mapped;
}

Collection<clsLayer> ProjectImport::TakeMainLayers() {
    const Collection<clsLayer>& all = *incoming_.colMainLayer;
    Collection<clsLayer> layers = MapLayers(all, ChosenOf(options_.Layers, all.Count()));
    if (options_.chkSprite || !options_.chkLayerFolder) return layers;
    const auto folder = MakeOwnLayer(KindLayerFolder, 1);
    folder->LayerName = options_.LayerFolderName;
    Collection<clsLayer> nested;
    nested.Add(folder);
    InsertRows(nested, {2, folder}, layers);
    return nested;
}

void ProjectImport::AddSprite(Collection<clsLayer> layers) {
    auto symbol = std::make_shared<clsSymbolData>(KindSprite);
    symbol->ID = options_.ID;
    auto& sprite = *symbol->Property<clsPropertySprite>();
    sprite.SpriteName = options_.SpriteName;
    sprite.Width = incoming_.MainWidth;
    sprite.height = incoming_.MainHeight;
    *sprite.colLayer = std::move(layers);
    sprite_ = std::move(symbol);
}

/// Numbers of the library stay; of incoming symbols that share one the last keeps it.
void ProjectImport::Renumber(Long first) const {
    const Collection<clsSymbolData>& library = *target_.colSymbol;
    for (Long row = first; row <= library.Count(); ++row) {
        clsSymbolData& symbol = *library(row);
        const std::int64_t moved = std::int64_t{symbol.ID} + options_.AddID;
        const bool adds = options_.IDMode == 1 && &symbol != sprite_.get() && symbol.ID > 0;
        if (adds && moved >= 1 && moved <= SymbolIdEdit::MaxId)
            symbol.ID = static_cast<Long>(moved);
    }
    SymbolIds ids(library);
    if (sprite_ && sprite_->ID < 1) ids.Change(*sprite_, ids.Free());
    SeparateIds(library, ids, first, library.Count(),
                [] { ShowMessage(u"IDが重複しています。\r\n空いているIDへ変更します。"); });
}

void ProjectImport::AddToLibrary() {
    Collection<clsSymbolData>& library = *target_.colSymbol;
    std::shared_ptr<clsSymbolData> folder;
    if (options_.chkFolder) {
        folder = std::make_shared<clsSymbolData>(KindSymbolFolder);
        folder->Property<clsPropertySymbolFolder>()->FolderName = options_.FolderName;
        library.Add(folder);
    }
    std::unordered_set<const clsSymbolData*> comes;
    if (sprite_) symbols_.push_back(sprite_);
    for (const auto& symbol : symbols_) {
        auto outer = FolderThatComes(
            *symbol, [&comes](const auto& known) { return comes.contains(known.get()); });
        if (!outer) outer = folder;
        if (auto* record = symbol->Property<clsPropertySymbolFolder>()) record->LayerCount = 0;
        symbol->ParentFolder(outer);
        if (outer) outer->AddInFolder(1);
        comes.insert(symbol.get());
        library.Add(symbol);
    }
    NumberSymbols(library);
}

}  // namespace tamber

#include "app/session/Histories.h"

#include "document/records/SymbolTimeline.h"

namespace tamber {

void Histories::Begin(bool together, Long steps) {
    together_ = together;
    steps_ = steps;
    cUndoRedo.MaxHistory(steps);
}

clsUndoRedo& Histories::Of(const std::shared_ptr<clsSymbolData>& owner) {
    if (!owner || together_) return cUndoRedo;
    std::shared_ptr<clsUndoRedo>& own = *OwnHistory(*owner);
    if (own) return *own;
    own = std::make_shared<clsUndoRedo>();
    own->Owner = owner;
    own->MaxHistory(steps_);
    clsUndoRedoData data;
    data.inSprite = owner;
    own->Init(data, *TimelineOf(*owner));
    return *own;
}

const clsUndoRedo* Histories::Find(const std::shared_ptr<clsSymbolData>& owner) const {
    return !owner || together_ ? &cUndoRedo : OwnHistory(*owner)->get();
}

void Histories::Record(clsUndoRedo& history, clsUndoRedoData data,
                       const Collection<clsLayer>& layers, UndoStep type) {
    switch (type) {
        case UndoStep::Init:
            history.Init(data, layers);
            break;
        case UndoStep::Pending:
            history.SetUndoRedoData(std::move(data), layers);
            break;
        case UndoStep::Change:
        case UndoStep::Merge:
            history.Change(std::move(data), layers, type == UndoStep::Merge);
            break;
    }
}

void Histories::ForEachOwn(const Collection<clsSymbolData>& library,
                           const std::function<void(clsSymbolData&, clsUndoRedo&)>& visit) const {
    if (together_) return;
    for (const auto& symbol : library)
        if (const auto* own = OwnHistory(*symbol); own != nullptr && *own) visit(*symbol, **own);
}

bool Histories::Changed(const Collection<clsSymbolData>& library) const {
    bool changed = cUndoRedo.TotalHistory != 0;
    ForEachOwn(library, [&changed](const clsSymbolData&, const clsUndoRedo& own) {
        changed = changed || own.TotalHistory != 0;
    });
    return changed;
}

void Histories::CountFromHere(const Collection<clsSymbolData>& library) {
    const auto count = [](clsUndoRedo& history) {
        history.TotalHistory = 0;
        history.Tag.clear();
    };
    count(cUndoRedo);
    ForEachOwn(library, [&count](const clsSymbolData&, clsUndoRedo& own) { count(own); });
}

void Histories::Keep(const Collection<clsSymbolData>& library, const SymbolList& leaving) {
    const auto kept = std::make_shared<const RemovedSymbols>(leaving);
    cUndoRedo.Keep(kept);
    SymbolSet gone;
    for (const auto& symbol : leaving) gone.insert(symbol.get());
    ForEachOwn(library, [&](const clsSymbolData& owner, clsUndoRedo& own) {
        if (!gone.contains(&owner)) own.Keep(kept);
    });
}

}  // namespace tamber

#include "document/symbols/SymbolIds.h"

#include <algorithm>

namespace tamber {

SymbolIds::SymbolIds(const Collection<clsSymbolData>& library)
    : low_(static_cast<std::size_t>(library.Count()) + 2) {
    for (const auto& symbol : library) Add(symbol->ID, 1);
}

Long SymbolIds::Count(Long id) const {
    if (id < 1) return 0;
    if (static_cast<std::size_t>(id) < low_.size()) return low_[static_cast<std::size_t>(id)];
    const auto found = high_.find(id);
    return found == high_.end() ? 0 : found->second;
}

void SymbolIds::Add(Long id, Long count) {
    if (id < 1) return;
    if (static_cast<std::size_t>(id) < low_.size())
        low_[static_cast<std::size_t>(id)] += count;
    else
        high_[id] += count;
    if (Count(id) == 0) free_ = std::min(free_, id);
}

bool SymbolIds::IsShared(const clsSymbolData& symbol) const {
    return Count(symbol.ID) > 1;
}

Long SymbolIds::Free() {
    while (Count(free_) > 0) ++free_;
    return free_;
}

void SymbolIds::Change(clsSymbolData& symbol, Long id) {
    Add(symbol.ID, -1);
    Add(id, 1);
    symbol.ID = id;
}

Long GetSymbolID(const Collection<clsSymbolData>& library) {
    return SymbolIds(library).Free();
}

bool CheckID(const Collection<clsSymbolData>& library, Long id, Long index) {
    Long row = 0;
    return std::none_of(library.begin(), library.end(),
                        [&](const auto& symbol) { return ++row != index && symbol->ID == id; });
}

bool HasNumber(const clsSymbolData& symbol) {
    return KindOf(symbol.eType()).blLayer;
}

void SeparateIds(const Collection<clsSymbolData>& library, SymbolIds& ids, Long first, Long last,
                 const std::function<void()>& tell) {
    bool told = false;
    for (Long row = std::max(first, 1); row <= std::min(last, library.Count()); ++row) {
        clsSymbolData& symbol = *library(row);
        if (!HasNumber(symbol) || !ids.IsShared(symbol)) continue;
        if (!told) tell();
        told = true;
        ids.Change(symbol, ids.Free());
    }
}

}  // namespace tamber

#include "document/edit/SymbolIdEdit.h"

#include <algorithm>
#include <limits>

namespace tamber {

namespace {

Long Difference(std::int64_t from, Long taken) {
    return static_cast<Long>(
        std::min<std::int64_t>(from - taken, std::numeric_limits<Long>::max()));
}

}  // namespace

SymbolIdEdit::SymbolIdEdit(const Collection<clsSymbolData>& library, Long first, Long last)
    : library_(library), first_(first), last_(last) {
    for (Long row = first; row <= last; ++row) {
        clsSymbolData& symbol = *library(row);
        if (!HasNumber(symbol)) continue;
        symbols_.push_back(&symbol);
        smallest_ = std::min(smallest_, symbol.ID);
        largest_ = std::max(largest_, symbol.ID);
    }
}

Long SymbolIdEdit::Lowest() const {
    return blRenumber ? 1 : Difference(1, smallest_);
}

Long SymbolIdEdit::Highest() const {
    return blRenumber ? MaxId + 1 - Count() : Difference(MaxId, largest_);
}

void SymbolIdEdit::Apply(const std::function<void()>& tell) const {
    Long next = blDescendingOrder ? Value + Count() - 1 : Value;
    for (clsSymbolData* symbol : symbols_) {
        symbol->ID = blRenumber ? next : symbol->ID + Value;
        next += blDescendingOrder ? -1 : 1;
    }
    SymbolIds ids(library_);
    bool told = false;
    const auto tellOnce = [&] {
        if (!told) tell();
        told = true;
    };
    SeparateIds(library_, ids, 1, first_ - 1, tellOnce);
    SeparateIds(library_, ids, last_ + 1, library_.Count(), tellOnce);
}

}  // namespace tamber

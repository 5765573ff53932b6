#pragma once

#include "document/symbols/SymbolIds.h"

namespace tamber {

/// New numbers for the symbols of some rows of a library. Numbers range from 1 to 9999; rows whose
/// symbols have none are passed over.
class SymbolIdEdit {
public:
    static constexpr Long MaxId = 9999;

    /// Numbers anew from `Value` rather than adding `Value` to each.
    bool blRenumber = false;
    Long Value = 0;
    /// New numbers fall from row to row.
    bool blDescendingOrder = false;

    SymbolIdEdit(const Collection<clsSymbolData>& library, Long first, Long last);

    /// Numbered symbols among the rows.
    Long Count() const { return static_cast<Long>(symbols_.size()); }
    /// Limits of `Value` in the present mode; the lowest is above the highest where no value fits.
    Long Lowest() const;
    Long Highest() const;
    bool IsAllowed() const { return Count() > 0 && Value >= Lowest() && Value <= Highest(); }
    /// Numbers the symbols, then gives free numbers to those before and behind the rows that share
    /// theirs with another. `tell` is called before the first of these.
    void Apply(const std::function<void()>& tell) const;

private:
    const Collection<clsSymbolData>& library_;
    Long first_;
    Long last_;
    std::vector<clsSymbolData*> symbols_;
    Long smallest_ = MaxId;
    Long largest_ = 1;
};

}  // namespace tamber

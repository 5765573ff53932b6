#pragma once

#include <functional>
#include <unordered_map>
#include <vector>

#include "document/symbols/clsSymbolData.h"
#include "platform/Collection.h"

namespace tamber {

/// Which numbers the symbols of a library have. Those below 1 are no numbers.
class SymbolIds {
public:
    explicit SymbolIds(const Collection<clsSymbolData>& library);

    /// Another symbol has the number of this one.
    bool IsShared(const clsSymbolData& symbol) const;
    /// The smallest number that no symbol has.
    Long Free();
    /// Gives a symbol a number.
    void Change(clsSymbolData& symbol, Long id);

private:
    Long Count(Long id) const;
    void Add(Long id, Long count);

    /// Symbols that have the number, up to one more than there are symbols.
    std::vector<Long> low_;
    std::unordered_map<Long, Long> high_;
    /// All numbers below are in use.
    Long free_ = 1;
};

/// The smallest positive number that no symbol has.
Long GetSymbolID(const Collection<clsSymbolData>& library);
/// No symbol but the one at `index`, which may be 0, has this number.
bool CheckID(const Collection<clsSymbolData>& library, Long id, Long index);
/// Kinds whose symbols are numbered.
bool HasNumber(const clsSymbolData& symbol);
/// Gives free numbers to the symbols from row `first` to row `last` that share theirs. `tell` is
/// called before the first change. Rows beyond the library do not count.
void SeparateIds(const Collection<clsSymbolData>& library, SymbolIds& ids, Long first, Long last,
                 const std::function<void()>& tell);

}  // namespace tamber

#pragma once

#include <unordered_map>
#include <vector>

#include "document/Project.h"
#include "document/edit/SymbolReferences.h"

namespace tamber {

/// Which timelines of a project show symbols that are to leave it. Timelines of these symbols
/// themselves are left out: they leave with them.
class SymbolUses {
public:
    SymbolUses(const Project& project, const SymbolList& leaving);

    /// Owners of the timelines that show a symbol of this number, each once: null for the main
    /// timeline, then the sprites, then the classes.
    const SymbolList& Of(Long id) const;

private:
    void AddTimeline(const std::shared_ptr<clsSymbolData>& owner,
                     const Collection<clsLayer>& layers);

    /// By number; those of the leaving symbols alone.
    std::unordered_map<Long, SymbolList> owners_;
};

/// Removes the layers that show a symbol of this number from a timeline. Gives the rows that went,
/// from the first on.
std::vector<Long> RemoveLayersOfSymbol(Collection<clsLayer>& layers, Long id);

}  // namespace tamber

#pragma once

#include <memory>
#include <unordered_set>
#include <vector>

#include "document/symbols/clsSymbolData.h"
#include "platform/Collection.h"

namespace tamber {

using SymbolList = std::vector<std::shared_ptr<clsSymbolData>>;
using SymbolSet = std::unordered_set<const clsSymbolData*>;

/// What a symbol refers to, the symbols on a sprite's layers included; null among them for what is
/// not set.
SymbolList ReferencesOf(const clsSymbolData& symbol);

/// Symbols that cannot stay in a library which `leaving` leave, nor without each other: buttons
/// without their up state, komas without a picture left, links whose record refers to one that
/// leaves. In no telling order, `leaving` themselves left out.
SymbolList FallenWith(const Collection<clsSymbolData>& library, const SymbolList& leaving);

/// Clears what the symbols of a library refer to among `gone`; layers are not looked at. Gives the
/// texts that lost the shape they follow: their size is to be worked out again.
SymbolList ClearReferences(const Collection<clsSymbolData>& library, const SymbolSet& gone);

}  // namespace tamber

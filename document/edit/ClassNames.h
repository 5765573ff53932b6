#pragma once

#include <vector>

#include "document/symbols/clsSymbolData.h"
#include "platform/Collection.h"

namespace tamber {

/// Names that a class can extend, and that its own must differ from: "MovieClip", then the other
/// classes of the library and those that its links bring from other movies.
std::vector<String> OtherClassNames(const Collection<clsSymbolData>& library,
                                    const clsSymbolData& own);

/// Why a class cannot have this name, blanks at its ends left aside; empty when it can.
String ClassNameFault(StringView name, const std::vector<String>& others);

}  // namespace tamber

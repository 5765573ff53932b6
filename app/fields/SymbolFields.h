#pragma once

#include "document/symbols/clsSymbolData.h"

namespace tamber {

/// Sets a value of a symbol by the name that it has in the state as JSON: "ObjectName",
/// "LinkClassName", "blExport", "blExportTop", or an option of its kind ("FontSize", "blToumei",
/// ...). False for a name that the symbol has none of, and for what other commands change (numbers,
/// files, references, names of classes); a text that is no number where one is wanted raises.
bool SetSymbolField(clsSymbolData& symbol, StringView field, StringView value);

}  // namespace tamber

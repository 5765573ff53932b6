#pragma once

#include <string_view>

#include "platform/types.h"

namespace tamber {

/// Names of the cells that the record of a kind writes, in file order, separated by commas; empty
/// for a kind without a record. `dynamicText` tells the form of a text's record.
std::string_view OptionCellNames(Long kind, bool dynamicText);

/// The same for an element's cells, of an element without placement values.
std::string_view ElementCellNames(Long kind);

/// The same for a filter set.
std::string_view FilterCellNames();

/// The same for an effect of a text or sprite.
std::string_view EffectCellNames();

/// The same for a script.
std::string_view ScriptCellNames();

}  // namespace tamber

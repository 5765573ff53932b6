#pragma once

#include <string>

#include "document/Project.h"

namespace tamber {

/// A project as a person reads it: stage, symbols, layers. UTF-8, a line feed at each line's end.
std::string ProjectInfoText(const Project& project);

/// All that the reader holds, as JSON in UTF-8: stage, rate, version, each symbol with its options
/// and each layer with every key frame and its element's values. Options and values that have no
/// name of their own here come as their project cells, in file order.
std::string ProjectInfoJson(const Project& project);

}  // namespace tamber

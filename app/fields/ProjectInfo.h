#pragma once

#include <string>

#include "document/Project.h"

namespace tamber {

/// A project as a person reads it: stage, symbols, layers. UTF-8, a line feed at each line's end.
std::string ProjectInfoText(const Project& project);

/// All that the reader holds, as JSON in UTF-8: stage, rate, version, each symbol with its options
/// and each layer with every key frame and its element's values. Options, filters and scripts come
/// as the texts of their project cells under their names.
std::string ProjectInfoJson(const Project& project);

}  // namespace tamber

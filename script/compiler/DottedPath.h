#pragma once

#include <string>

#include "script/compiler/Node.h"

namespace tamber {

/// The names of a path, `this` or a name and members of it, with dots between them. Empty for what
/// is no path.
std::string DottedPath(const Node& node);

/// The name that a path begins with, or null for what begins with none.
const Symbol* FirstName(const Node& node);

}  // namespace tamber

#pragma once

#include <string>
#include <vector>

namespace tamber {

/// Runs the program for its arguments, without the program's own name. The result is the exit code:
/// 0 done, 1 could not (nothing was written), 2 wrong usage, 3 (with --strict) written, but a
/// message was shown.
int RunCommandLine(const std::vector<std::string>& arguments, const std::string& programPath);

}  // namespace tamber

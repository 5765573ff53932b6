#pragma once

#include "app/commands/Command.h"

namespace tamber {

/// Runs commands of the controller from a text, one a line: the name, then arguments parted by
/// blanks, between double quotes where they hold any. A line that begins with "#" is a remark.
class BatchRunner {
public:
    explicit BatchRunner(CommandContext context) : context_(std::move(context)) {}

    /// Runs all lines. A line that fails is told, with its number, and the rest goes on; false
    /// then.
    bool Run(StringView script);

    /// The commands, one a line, with their arguments.
    static std::string List();

private:
    bool RunLine(StringView line, Long number);

    CommandContext context_;
};

}  // namespace tamber

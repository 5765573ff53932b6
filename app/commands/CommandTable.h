#pragma once

#include "app/commands/Command.h"

namespace tamber {

/// What became of a command.
enum class CommandOutcome {
    Done,
    Refused,        ///< there was nothing to do it on, or the user was told why not
    Busy,           ///< another command runs
    WrongCount,     ///< too few or too many arguments
    WrongArgument,  ///< an argument that cannot be read, or is out of its range
};

/// All commands, in the order in which they are listed.
const std::vector<const Command*>& CommandTable();
/// Null for a name that no command has.
const Command* FindCommand(StringView name);
/// The name and the arguments.
String UsageOf(const Command& command);
/// Runs a command. What its arguments or the model raise ends here.
CommandOutcome RunCommand(const Command& command, CommandContext& context,
                          const CommandArguments& arguments);

}  // namespace tamber

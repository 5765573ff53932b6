#include "app/commands/CommandTable.h"

#include <map>

#include "platform/RuntimeError.h"

namespace tamber {

const std::vector<const Command*>& CommandTable() {
    static const auto table = [] {
        std::vector<const Command*> commands;
        for (const auto& group : {ProjectCommands(), LibraryCommands(), TimelineCommands()})
            for (const Command& command : group) commands.push_back(&command);
        return commands;
    }();
    return table;
}

const Command* FindCommand(StringView name) {
    static const auto byName = [] {
        std::map<StringView, const Command*> commands;
        for (const Command* command : CommandTable()) commands.emplace(command->Name, command);
        return commands;
    }();
    const auto found = byName.find(name);
    return found == byName.end() ? nullptr : found->second;
}

String UsageOf(const Command& command) {
    String text(command.Name);
    if (!command.Usage.empty()) text.append(u" ").append(command.Usage);
    return text;
}

CommandOutcome RunCommand(const Command& command, CommandContext& context,
                          const CommandArguments& arguments) {
    if (context.Controller.Running()) return CommandOutcome::Busy;
    if (arguments.size() < command.Least || arguments.size() > command.Most)
        return CommandOutcome::WrongCount;
    try {
        return command.Do(context, arguments) ? CommandOutcome::Done : CommandOutcome::Refused;
    } catch (const RuntimeError&) {
        return CommandOutcome::WrongArgument;
    }
}

}  // namespace tamber

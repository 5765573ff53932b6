#pragma once

#include <array>
#include <functional>
#include <limits>
#include <span>
#include <string>
#include <vector>

#include "app/commands/BatchUserInterface.h"
#include "app/controller/frmMain.h"

namespace tamber {

using CommandArguments = std::vector<String>;

/// What a command works on.
struct CommandContext {
    frmMain& Controller;
    /// Where answers to questions are prepared; null outside a batch.
    BatchUserInterface* Interface = nullptr;
    /// Gets what `Print` shows.
    std::function<void(const std::string& text)> Output = nullptr;
};

/// How a person meets a command: in a menu, on a button, by a key.
struct CommandEntry {
    /// Empty for a command that has no place in a menu.
    StringView Label{};
    /// Default key, as in "Ctrl+Shift+S"; empty for none.
    StringView Key{};
    /// The argument that the entry gives; empty where it gives none, and where a dialog asks for
    /// them.
    StringView Argument{};
    /// Whether it can be done now; null for always.
    bool (*Enabled)(const frmMain& controller) = nullptr;
    /// Whether it shows as checked; null for an entry that never does.
    bool (*Checked)(const frmMain& controller) = nullptr;

    bool IsEnabled(const frmMain& controller) const {
        return !controller.Running() && (Enabled == nullptr || Enabled(controller));
    }
    bool IsChecked(const frmMain& controller) const {
        return Checked != nullptr && Checked(controller);
    }
};

/// A command, as a batch, a menu or a key runs it.
struct Command {
    static constexpr std::size_t AnyNumber = std::numeric_limits<std::size_t>::max();

    StringView Name;
    /// The arguments as the list shows them; what stands between brackets may be left out.
    StringView Usage;
    /// Arguments at least and at most.
    std::size_t Least = 0;
    std::size_t Most = 0;
    /// False when the command was refused. An argument that is no number where one is wanted
    /// raises.
    bool (*Do)(CommandContext& context, const CommandArguments& arguments) = nullptr;
    /// Its entries; those behind the last have no label.
    std::array<CommandEntry, 2> Entries{};
};

/// Projects, which timeline is edited, undo, movies, and the state as JSON.
std::span<const Command> ProjectCommands();
/// Rows of the library.
std::span<const Command> LibraryCommands();
/// Rows, key frames and what they show.
std::span<const Command> TimelineCommands();

}  // namespace tamber

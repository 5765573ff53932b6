#pragma once

#include <functional>
#include <limits>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "app/BatchUserInterface.h"
#include "app/frmMain.h"

namespace tamber {

using BatchArguments = std::vector<String>;

/// What the commands of a batch work on.
struct BatchContext {
    frmMain& Controller;
    BatchUserInterface& Interface;
    /// Gets what `Print` shows.
    std::function<void(const std::string& text)> Output;
    /// The key frame that stayed selected when a frame was chosen that no key frame of its row
    /// covers; null behind a choice of one that is covered.
    std::shared_ptr<const clsLayerObject> PassedOver = nullptr;
};

/// A command of a batch.
struct BatchCommand {
    static constexpr std::size_t AnyNumber = std::numeric_limits<std::size_t>::max();

    StringView Name;
    /// The arguments as the list shows them; what stands between brackets may be left out.
    StringView Usage;
    /// Arguments at least and at most.
    std::size_t Least = 0;
    std::size_t Most = 0;
    /// False when the command was refused. An argument that is no number where one is wanted
    /// raises.
    bool (*Do)(BatchContext& context, const BatchArguments& arguments) = nullptr;
};

/// Projects, which timeline is edited, undo, movies, and the state as JSON.
std::span<const BatchCommand> BatchProjectCommands();
/// Rows of the library.
std::span<const BatchCommand> BatchLibraryCommands();
/// Rows, key frames and what they show.
std::span<const BatchCommand> BatchTimelineCommands();

}  // namespace tamber

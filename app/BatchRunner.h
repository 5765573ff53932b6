#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "app/frmMain.h"
#include "platform/ConsoleUserInterface.h"

namespace tamber {

/// Talks as ConsoleUserInterface does, and answers questions from a list first.
class BatchUserInterface : public ConsoleUserInterface {
public:
    using ConsoleUserInterface::ConsoleUserInterface;

    /// Answers to the next questions.
    std::deque<Answer> Answers;

    Answer Ask(StringView text, StringView title, Choices choices) override;
};

/// Runs commands of the controller from a text, one a line: the name, then arguments parted by
/// blanks, between double quotes where they hold any. A line that begins with "#" is a remark.
class BatchRunner {
public:
    /// Gets what `Print` shows.
    using Output = std::function<void(const std::string& text)>;

    BatchRunner(frmMain& controller, BatchUserInterface& interface, Output output);

    /// Runs all lines. A line that fails is told, with its number, and the rest goes on; false
    /// then.
    bool Run(StringView script);

    /// The commands, one a line, with their arguments.
    static std::string List();

private:
    using Arguments = std::vector<String>;

    struct Command {
        StringView Name;
        /// As the list shows them; what stands between brackets may be left out.
        StringView Usage;
        std::size_t Least = 0;
        std::size_t Most = 0;
        /// False when the command was refused, which was told.
        bool (BatchRunner::*Do)(const Arguments&);
    };
    static const std::vector<Command>& Commands();

    bool RunLine(StringView line, Long number);
    bool DoNew(const Arguments&);
    bool DoOpen(const Arguments& arguments);
    bool DoSave(const Arguments&);
    bool DoSaveNew(const Arguments& arguments);
    bool DoProperty(const Arguments& arguments);
    bool DoChangeSprite(const Arguments& arguments);
    bool DoUndoRedo(const Arguments& arguments);
    bool DoAuthoring(const Arguments& arguments);
    bool DoAnswer(const Arguments& arguments);
    bool DoPrint(const Arguments&);

    frmMain& controller_;
    BatchUserInterface& interface_;
    Output output_;
};

}  // namespace tamber

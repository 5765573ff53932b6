#pragma once

#include "app/session/Session.h"

namespace tamber {

/// Refuses a command while another runs, as one that a person gives while a long one shows its
/// progress would be.
class CommandGate {
public:
    bool Running() const { return running_; }

private:
    friend class CommandScope;

    bool running_ = false;
};

/// A command in work. At its end those who watch the session are told, once, what it changed.
class CommandScope {
public:
    CommandScope(Session& session, CommandGate& gate);
    ~CommandScope();
    CommandScope(const CommandScope&) = delete;
    CommandScope& operator=(const CommandScope&) = delete;

    /// Another command runs, which a status line told; this one must not go on.
    bool Refused() const { return refused_; }

private:
    /// What is told when it is another behind the command.
    struct State {
        String Name;
        bool Unsaved = false;
        bool Undo = false;
        bool Redo = false;
        Long CanvasWidth = 0;
        Long CanvasHeight = 0;
        const clsSymbolData* Timeline = nullptr;
    };
    State Look() const;
    SessionChange ChangesSince(const State& before) const;

    Session& session_;
    CommandGate& gate_;
    bool refused_;
    State before_;
};

}  // namespace tamber

#include "app/session/CommandScope.h"

#include "platform/UserInterface.h"

namespace tamber {

CommandScope::CommandScope(Session& session, CommandGate& gate)
    : session_(session), gate_(gate), refused_(gate.running_) {
    if (refused_) {
        CurrentUserInterface().Status(u"処理中のため実行できません。");
        return;
    }
    gate_.running_ = true;
    before_ = Look();
}

CommandScope::~CommandScope() {
    if (refused_) return;
    session_.Note(ChangesSince(before_));
    gate_.running_ = false;
    session_.TellWatchers();
}

CommandScope::State CommandScope::Look() const {
    return {session_.ProjectFileName,   session_.HasUnsavedWork(), session_.CanUndo(),
            session_.CanRedo(),         session_.CanvasWidth(),    session_.CanvasHeight(),
            session_.EditSymbol().get()};
}

SessionChange CommandScope::ChangesSince(const State& before) const {
    const State now = Look();
    SessionChange change;
    if (now.Name != before.Name) change |= Change::Name;
    if (now.Unsaved != before.Unsaved) change |= Change::Saved;
    if (now.Undo != before.Undo || now.Redo != before.Redo) change |= Change::History;
    if (now.CanvasWidth != before.CanvasWidth || now.CanvasHeight != before.CanvasHeight ||
        now.Timeline != before.Timeline)
        change |= Change::Context;
    return change;
}

}  // namespace tamber

#include "app/session/Transaction.h"

namespace tamber {

Transaction::~Transaction() {
    if (ended_) return;
    session_.inSelection = before_;
    session_.RestoreEditedTimeline();
}

void Transaction::Commit(SessionChange kinds, StringView tag) {
    session_.AddUndoRedoData(UndoStep::Change, tag);
    session_.Note(kinds | Change::History);
    ended_ = true;
}

bool ChangeTimeline(Session& session, SessionChange kinds,
                    const std::function<bool(Collection<clsLayer>& layers)>& apply) {
    Transaction change(session);
    const bool done = apply(*session.colEditLayer());
    if (done)
        change.Commit(kinds);
    else
        change.Leave();
    return done;
}

}  // namespace tamber

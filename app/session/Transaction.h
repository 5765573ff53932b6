#pragma once

#include <functional>

#include "app/session/Session.h"

namespace tamber {

/// A change of the edited timeline and the selection that takes place whole or not at all. When
/// something throws, the timeline is again as its history has it, and the selection as it was.
class Transaction {
public:
    explicit Transaction(Session& session) : session_(session), before_(session.inSelection) {}
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    /// Records the timeline as a step, and notes what is told of it. A tag that the last step had
    /// too joins the two.
    void Commit(SessionChange kinds, StringView tag = {});
    /// Ends it where there was nothing to change.
    void Leave() { ended_ = true; }

private:
    Session& session_;
    Selection before_;
    bool ended_ = false;
};

/// Changes the edited timeline as one step, of which `kinds` are told. False when `apply`, which
/// then has changed nothing, refuses.
bool ChangeTimeline(Session& session, SessionChange kinds,
                    const std::function<bool(Collection<clsLayer>& layers)>& apply);

}  // namespace tamber

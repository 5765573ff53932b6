#pragma once

#include <deque>
#include <functional>

#include "script/editor/ScriptText.h"
#include "script/editor/clsTextHistory.h"

namespace tamber {

/// The states that the editor's text went through.
class clsTextHistoryMng {
public:
    /// Told with each change of what can be undone and redone.
    std::function<void(bool)> OnUndo;
    std::function<void(bool)> OnRedo;
    /// Changes are not recorded.
    bool blCangeDisable = false;

    Long MaxHistory() const { return max_; }
    /// States beyond the number, at least 1, are dropped at once.
    void MaxHistory(Long count);
    /// Empties the list and adds the state shown.
    void Init(const TextControl& control);
    /// Adds the state shown; those that could be redone are dropped.
    void Change(const TextControl& control);
    /// False when there is nothing to undo.
    bool Undo(TextControl& control);
    bool Redo(TextControl& control);
    bool CanUndo() const { return index_ + 1 < states_.size(); }
    bool CanRedo() const { return index_ > 0; }

private:
    /// A state without its text, and what makes its text of the next older one's, and back.
    struct State {
        clsTextHistory View;
        TextEdit FromOlder{};
        TextEdit ToOlder{};
    };

    void Restore(TextControl& control);
    void Tell() const;
    void Trim();

    static constexpr Long DefaultMax = 128;

    /// The newest one first.
    std::deque<State> states_;
    std::size_t index_ = 0;
    /// That of the state at `index_`.
    String text_;
    Long max_ = DefaultMax;
};

}  // namespace tamber

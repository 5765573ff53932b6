#include "script/editor/clsTextHistoryMng.h"

#include <algorithm>
#include <utility>

namespace tamber {

namespace {

/// Where two texts differ: how much they begin and end alike with.
struct Alike {
    std::size_t Front = 0;
    std::size_t Back = 0;
};

Alike AlikeOf(const String& a, const String& b) {
    const std::size_t shorter = std::min(a.size(), b.size());
    const auto front =
        std::mismatch(a.begin(), a.begin() + static_cast<std::ptrdiff_t>(shorter), b.begin());
    const auto same = static_cast<std::size_t>(front.first - a.begin());
    const auto back = std::mismatch(
        a.rbegin(), a.rbegin() + static_cast<std::ptrdiff_t>(shorter - same), b.rbegin());
    return {same, static_cast<std::size_t>(back.first - a.rbegin())};
}

TextEdit EditOf(const String& from, const String& to, Alike alike) {
    const auto middle = [&](const String& text) { return text.size() - alike.Front - alike.Back; };
    return {alike.Front, middle(from), to.substr(alike.Front, middle(to))};
}

}  // namespace

void clsTextHistoryMng::Tell() const {
    if (OnUndo) OnUndo(CanUndo());
    if (OnRedo) OnRedo(CanRedo());
}

void clsTextHistoryMng::Trim() {
    const auto many = static_cast<std::size_t>(max_);
    while (states_.size() > many && index_ + 1 < states_.size()) states_.pop_back();
    // Of a list that is undone beyond the number the newest states go.
    while (states_.size() > many) {
        states_.pop_front();
        --index_;
    }
}

void clsTextHistoryMng::MaxHistory(Long count) {
    max_ = std::max(count, 1);
    Trim();
    Tell();
}

void clsTextHistoryMng::Init(const TextControl& control) {
    clsTextHistory shown = control.Capture();
    text_ = std::exchange(shown.Text, {});
    states_.assign(1, {std::move(shown)});
    index_ = 0;
    Tell();
}

void clsTextHistoryMng::Change(const TextControl& control) {
    if (blCangeDisable) return;
    states_.erase(states_.begin(), states_.begin() + static_cast<std::ptrdiff_t>(index_));
    index_ = 0;
    clsTextHistory shown = control.Capture();
    const String text = std::exchange(shown.Text, {});
    const Alike alike = AlikeOf(text_, text);
    states_.push_front({std::move(shown), EditOf(text_, text, alike), EditOf(text, text_, alike)});
    text_ = text;
    Trim();
    Tell();
}

bool clsTextHistoryMng::Undo(TextControl& control) {
    if (!CanUndo()) return false;
    const TextEdit& edit = states_[index_].ToOlder;
    text_.replace(edit.Start, edit.Removed, edit.Inserted);
    ++index_;
    Restore(control);
    return true;
}

bool clsTextHistoryMng::Redo(TextControl& control) {
    if (!CanRedo()) return false;
    --index_;
    const TextEdit& edit = states_[index_].FromOlder;
    text_.replace(edit.Start, edit.Removed, edit.Inserted);
    Restore(control);
    return true;
}

void clsTextHistoryMng::Restore(TextControl& control) {
    const bool disabled = std::exchange(blCangeDisable, true);
    clsTextHistory state = states_[index_].View;
    state.Text = text_;
    control.Restore(state);
    blCangeDisable = disabled;
    Tell();
}

}  // namespace tamber

#pragma once

#include <functional>

#include "app/session/Session.h"
#include "canvas/timeline/FrameShift.h"

namespace tamber {

/// What is done to the key frames of the selected rows.
class KeyFrameOperations {
public:
    explicit KeyFrameOperations(Session& session) : session_(session) {}

    /// Puts the frame cursor where a label is. False for a label that there is none of.
    bool Jump(StringView label);
    void Copy();
    void Cut();
    void Paste(FrameClipboard::Room room);
    void Remove();
    void Add();
    /// Shifts the selected rows, or all.
    void Shift(ShiftDirection direction);
    void ShiftAll(ShiftDirection direction);
    void Fix(bool on);
    void Tween(bool on);
    /// Takes the previous key frame's element (0) or the next one's (1); the motion path stays.
    void CopyElement(Long index);
    /// Moves the start of the selected key frame between its neighbours. False when it cannot.
    bool ChangeStartFrame(Long frame);
    /// Sets the length of the selected key frame, which ends before the next one. False when it
    /// cannot, or when a flag decides it.
    bool ChangeDispCount(Long count);
    /// Changes the selected key frame, on a copy that takes its place when `apply` goes well. False
    /// when none is selected or `apply` refuses.
    bool Change(StringView tag, const std::function<bool(clsLayerObject&)>& apply);

private:
    /// Changes the span of the selected key frame to a length or a start within the limits.
    bool ChangeSpan(Long value, Long (clsLayerObject::*present)() const,
                    bool (*apply)(clsLayer& layer, Long value, Long lastFrame));

    Session& session_;
};

}  // namespace tamber

#pragma once

#include <memory>

#include "document/symbols/clsLayer.h"
#include "platform/Collection.h"

namespace tamber {

/// Key frames copied from a range of a layer, to be pasted any number of times. Pasted onto a layer
/// of another kind they keep what both kinds have.
class FrameClipboard {
public:
    /// How a paste makes room.
    enum class Room {
        /// Later key frames give way as far as the pasted ones would overlap them.
        AsNeeded,
        /// The copied range's frames are cleared.
        Clear,
        /// The copied range's frames are inserted.
        Insert,
    };

    /// The key frames, the range's first frame being 1; null when none is held.
    std::shared_ptr<Collection<clsLayerObject>> colCopyFrames;
    /// Length of the copied range in frames.
    Long CopyFrameCount = 0;

    bool Empty() const { return !colCopyFrames; }
    /// Takes the key frames that start within the frames, which may stand in either order. A range
    /// in which none starts empties the clipboard.
    void Copy(const clsLayer& layer, Long frame1, Long frame2);
    /// Pastes at a frame, and gives the place of the first key frame pasted. `lastFrame` is the
    /// timeline's. The clipboard must not be empty.
    Long Paste(clsLayer& layer, Long frame, Room room, Long lastFrame) const;

private:
    void MakeRoom(clsLayer& layer, Long frame, Room room) const;
};

}  // namespace tamber

#include "canvas/EditSnapshot.h"

#include "swf/authoring/MovieLimits.h"

namespace tamber {

bool WriteEditSnapshot(clsSWFAdmin& admin, const SnapshotRequest& snapshot, Long backColor,
                       StringView path, PlacedTags& placed) {
    // Each redraw would tell it again.
    Notices untold;
    admin.InitSWF();
    admin.BackGroundColor = backColor;
    PlacedTags tags = mdlSWFAuthoring::WriteFrameSnapshot(admin, snapshot, untold);
    const bool written = admin.DefineID <= MaxIdentifiers && admin.Save(path, untold);
    // The pictures in it are not kept until the next redraw.
    admin.InitSWF();
    if (written) placed = std::move(tags);
    return written;
}

}  // namespace tamber

#include "canvas/EditSnapshot.h"

#include "platform/SilentUserInterface.h"
#include "swf/authoring/MovieLimits.h"

namespace tamber {

bool WriteEditSnapshot(clsSWFAdmin& admin, const Collection<clsSymbolData>& library,
                       const SnapshotRequest& snapshot, Long backColor, StringView path,
                       PlacedTags& placed) {
    SilentUserInterface silent;
    const UserInterfaceScope scope(silent);
    mdlSWFTag::swfVersion(admin.Ver);
    for (const auto& symbol : library) symbol->InitDefineID();
    admin.InitSWF();
    admin.BackGroundColor = backColor;
    PlacedTags tags = mdlSWFAuthoring::WriteFrameSnapshot(admin, snapshot);
    const bool written = admin.DefineID <= MaxIdentifiers && admin.Save(path);
    // The pictures in it are not kept until the next redraw.
    admin.InitSWF();
    if (written) placed = std::move(tags);
    return written;
}

}  // namespace tamber

#include "canvas/picture/SnapshotMovie.h"

#include "canvas/timeline/SymbolRows.h"
#include "swf/authoring/MovieLimits.h"

namespace tamber {

namespace {

constexpr Long White = 0xFFFFFF;

}  // namespace

std::shared_ptr<const PictureMovie> SnapshotMovie(clsSWFAdmin& admin,
                                                  const SnapshotRequest& snapshot, Long backColor,
                                                  PlacedTags& placed) {
    // Each redraw would tell it again.
    Notices untold;
    admin.InitSWF();
    admin.BackGroundColor = backColor;
    admin.blCompress = false;
    PlacedTags tags = mdlSWFAuthoring::WriteFrameSnapshot(admin, snapshot, untold);
    std::shared_ptr<const PictureMovie> movie;
    const auto read = [&movie](ByteView file) {
        movie = ReadPictureMovie(file);
        return movie != nullptr;
    };
    if (admin.DefineID <= MaxIdentifiers) admin.SaveTo(read, untold);
    // The pictures in it are not kept until the next redraw.
    admin.InitSWF();
    if (movie) placed = std::move(tags);
    return movie;
}

std::shared_ptr<const PictureMovie> SymbolMovie(const std::shared_ptr<clsSymbolData>& symbol,
                                                Long version, std::shared_ptr<clsFontAdmin> fonts) {
    Collection<clsSymbolData> library;
    library.Add(symbol);
    const Collection<clsLayer> rows = LayersForSymbols(library, 1, 1, 1);
    if (rows.Empty()) return nullptr;
    SnapshotRequest request;
    request.Layers = &rows;
    request.LastRow = rows.Count();
    clsSWFAdmin admin;
    admin.Ver = version;
    admin.inFontAdmin = std::move(fonts);
    PlacedTags placed;
    return SnapshotMovie(admin, request, White, placed);
}

}  // namespace tamber

#include "canvas/picture/SnapshotMovie.h"

#include <functional>

#include "canvas/picture/MoviePicture.h"
#include "canvas/timeline/SymbolRows.h"
#include "swf/authoring/MovieLimits.h"

namespace tamber {

namespace {

constexpr Long White = 0xFFFFFF;

/// Hands the bytes of a snapshot to `take`. False for one that no movie can hold; `placed` then
/// stays.
bool TakeSnapshot(clsSWFAdmin& admin, const SnapshotRequest& snapshot, Long backColor,
                  const std::function<bool(ByteView)>& take, PlacedTags& placed) {
    // Each redraw would tell it again.
    Notices untold;
    admin.InitSWF();
    admin.BackGroundColor = backColor;
    admin.blCompress = false;
    PlacedTags tags = mdlSWFAuthoring::WriteFrameSnapshot(admin, snapshot, untold);
    const bool taken = admin.DefineID <= MaxIdentifiers && admin.SaveTo(take, untold);
    // The pictures in it are not kept until the next redraw.
    admin.InitSWF();
    if (taken) placed = std::move(tags);
    return taken;
}

}  // namespace

std::shared_ptr<const PictureMovie> SnapshotMovie(clsSWFAdmin& admin,
                                                  const SnapshotRequest& snapshot, Long backColor,
                                                  PlacedTags& placed, CharacterCache& cache) {
    std::shared_ptr<const PictureMovie> movie;
    const auto read = [&](ByteView file) {
        movie = ReadPictureMovie(file, cache);
        return movie != nullptr;
    };
    TakeSnapshot(admin, snapshot, backColor, read, placed);
    return movie;
}

Bytes SymbolMovieFile(const std::shared_ptr<clsSymbolData>& symbol, Long version,
                      std::shared_ptr<clsFontAdmin> fonts) {
    Bytes bytes;
    Collection<clsSymbolData> library;
    library.Add(symbol);
    const Collection<clsLayer> rows = LayersForSymbols(library, 1, 1, 1);
    if (rows.Empty()) return bytes;
    SnapshotRequest request;
    request.Layers = &rows;
    request.LastRow = rows.Count();
    clsSWFAdmin admin;
    admin.Ver = version;
    admin.inFontAdmin = std::move(fonts);
    PlacedTags placed;
    const auto keep = [&bytes](ByteView file) {
        bytes.assign(file.begin(), file.end());
        return true;
    };
    TakeSnapshot(admin, request, White, keep, placed);
    return bytes;
}

std::shared_ptr<const PictureMovie> ReadSymbolMovie(ByteView file) {
    const auto movie = ReadPictureMovie(file);
    if (!movie) return nullptr;
    const PaintBox box = ContentOf(*movie);
    if (box.IsEmpty()) return nullptr;
    auto shown = std::make_shared<PictureMovie>(*movie);
    shown->Stage = {static_cast<Long>(box.Left), static_cast<Long>(box.Top),
                    static_cast<Long>(box.Right), static_cast<Long>(box.Bottom)};
    return shown;
}

}  // namespace tamber

#include "app/operations/PictureOperations.h"

#include <algorithm>

#include "app/operations/MovieBuilding.h"
#include "app/tasks/Task.h"
#include "canvas/picture/SnapshotMovie.h"
#include "platform/text.h"
#include "swf/authoring/TextDefinition.h"

namespace tamber {

std::shared_ptr<const PictureMovie> PictureOperations::Movie() const {
    MovieRequest request = RequestOf(session_);
    request.blCompress = false;
    Bytes file;
    request.Movie = &file;
    const auto outcome = RunTask([&] {
        request.Fonts =
            RefreshFontAdmin(*session_.inProject.colSymbol, session_.inProject.SWFVersion);
        return mdlSWFAuthoring::BuildMovie(request);
    });
    if (!outcome) return nullptr;
    ShowNotices(outcome->Told);
    return outcome->Written ? ReadPictureMovie(file) : nullptr;
}

std::shared_ptr<const PictureMovie> PictureOperations::SymbolMovie(Long id) const {
    const Collection<clsSymbolData>& library = *session_.colSymbol();
    const auto found = std::find_if(library.begin(), library.end(),
                                    [id](const auto& symbol) { return symbol->ID == id; });
    const Long version = session_.inProject.SWFVersion;
    std::shared_ptr<const PictureMovie> movie;
    if (found != library.end())
        movie =
            ReadSymbolMovie(SymbolMovieFile(*found, version, RefreshFontAdmin(library, version)));
    if (!movie) ShowMessage(u"シンボルが見つかりません。\r\n\r\nID：" + ToText(id));
    return movie;
}

}  // namespace tamber

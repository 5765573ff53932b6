#include "canvas/picture/SymbolPictures.h"

#include <chrono>

namespace tamber {

namespace {

constexpr std::chrono::seconds Patience{1};

PictureView ViewOf(const PictureMovie& movie, Long size) {
    PictureView view = ViewOfSize(movie.Stage, size, size);
    view.blTransparent = true;
    view.Options.Deadline = std::chrono::steady_clock::now() + Patience;
    return view;
}

}  // namespace

Raster SymbolPictures::SymbolPicture(const std::shared_ptr<clsSymbolData>& symbol, Long size,
                                     Long version, const std::shared_ptr<clsFontAdmin>& fonts) {
    const Bytes file = SymbolMovieFile(symbol, version, fonts);
    if (file.empty()) return {};
    const CharacterCache::Key content = CharacterCache::KeyOf(size, file);
    const auto found = known_.find(content.Low);
    if (found != known_.end() && found->second.Content == content && found->second.Size == size)
        return found->second.Picture;
    const auto movie = ReadSymbolMovie(file);
    if (!movie) return {};
    Raster picture = MoviePicture(movie).Draw(1, ViewOf(*movie, size));
    if (known_.size() >= MostPictures) known_.clear();
    known_[content.Low] = {content, size, picture};
    return picture;
}

}  // namespace tamber

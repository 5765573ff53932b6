#pragma once

#include <list>

#include "canvas/picture/CharacterCache.h"
#include "canvas/picture/MoviePicture.h"
#include "canvas/picture/SnapshotMovie.h"

namespace tamber {

/// Small pictures of symbols, each drawn once for what the symbol holds.
class SymbolPictures {
public:
    /// The symbol as large as it fits into a square of `size` pixels, on nothing; empty for a kind
    /// that is not seen. `version` and `fonts` are those of its project.
    Raster SymbolPicture(const std::shared_ptr<clsSymbolData>& symbol, Long size, Long version,
                         const std::shared_ptr<clsFontAdmin>& fonts);

private:
    struct Known {
        CharacterCache::Key Content;
        Long Size;
        Raster Picture;
    };

    /// Pictures that are kept; a library of that many rows is drawn without a second thought.
    static constexpr std::size_t MostPictures = 4096;

    std::unordered_map<std::uint64_t, Known> known_;
};

}  // namespace tamber

#pragma once

#include <optional>

#include "canvas/picture/CharacterCache.h"
#include "canvas/picture/PictureFill.h"
#include "canvas/picture/Timeline.h"
#include "swf/SwfTypes.h"

namespace tamber {

/// A movie as it can be drawn.
struct PictureMovie {
    /// Twips.
    SwfRect Stage;
    /// Frames a second.
    double Rate = 0;
    PictureColor Background{255, 255, 255, 255};
    Timeline Main;
    /// It holds actions, which a picture does not follow.
    bool blScripts = false;
};

/// Reads a movie. What is damaged in it is left out, and what comes behind a tag that is longer
/// than the file. Nothing for a file that is no movie.
std::shared_ptr<const PictureMovie> ReadPictureMovie(ByteView file);
/// As above; what the cache knows from the movie before is not read again.
std::shared_ptr<const PictureMovie> ReadPictureMovie(ByteView file, CharacterCache& cache);

}  // namespace tamber

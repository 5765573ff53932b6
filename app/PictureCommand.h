#pragma once

#include <optional>

#include "app/controller/frmMain.h"

namespace tamber {

/// What pictures of a movie are asked for.
struct PictureRequest {
    /// Of the symbol with this number alone; 0 for the movie.
    Long Symbol = 0;
    /// Frames, from 1. Of one frame alone the sprites show their first; in a sequence they go on,
    /// and behind the movie's last frame it begins anew.
    Long FirstFrame = 1;
    Long LastFrame = 1;
    bool blSequence = false;
    double Scale = 1;
    /// Pixels of each picture; the stage's own, scaled, when not set.
    std::optional<std::pair<Long, Long>> Size;
    bool blTransparent = false;
    /// Rounds of an animation; 0 for ever.
    Long Loops = 0;
    /// A PNG file; of a sequence with a place for the number, as in "a_%04d.png".
    String Output;
};

/// "3" or "3-40". Nothing for anything else.
std::optional<std::pair<Long, Long>> ReadFrames(StringView text);
/// "640x480", sides of 1 to 16384. Nothing for anything else.
std::optional<std::pair<Long, Long>> ReadSize(StringView text);
/// `pattern` with `number` in place of "%d" or "%04d"; nothing for a text that has no such place,
/// or more than one.
std::optional<String> NumberedPath(StringView pattern, Long number);

/// Draws all frames of the open project, or those asked for, into one file that plays them: a GIF,
/// a PNG or a WebP by the path's extension. False, with the reason told, when it could not be drawn
/// or written.
bool WriteAnimation(frmMain& controller, const PictureRequest& request);

/// Draws pictures of the open project into files. False, with the reason told, when one could not
/// be drawn or written.
bool WritePictures(frmMain& controller, const PictureRequest& request);

}  // namespace tamber

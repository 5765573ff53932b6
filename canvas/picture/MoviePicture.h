#pragma once

#include "canvas/picture/PaintCache.h"
#include "canvas/picture/PaintState.h"
#include "canvas/picture/PictureMovie.h"

namespace tamber {

/// What part of a stage a picture shows, and how.
struct PictureView {
    /// Pixels.
    Long Width = 0;
    Long Height = 0;
    /// Where the stage's left upper corner lies in the picture, pixels.
    double Left = 0;
    double Top = 0;
    bool blTransparent = false;
    PaintOptions Options{};
};

/// The picture of a movie's stage; each side is a pixel at least.
PictureView ViewOfStage(const SwfRect& stage, double scale);
/// A picture of that many pixels, with the stage in its middle as large as it fits.
PictureView ViewOfSize(const SwfRect& stage, Long width, Long height);

/// The state in which a movie's own timeline is drawn; `frame` from 1.
PaintState StateOfStage(const PictureMovie& movie, Long frame, const PictureView& view);
/// Fills a box of whole pixels with the colour behind the movie, or with nothing.
void ClearStage(const PictureMovie& movie, const PictureView& view, const PaintBox& box,
                Raster& picture);

/// What the first frame of a movie covers, twips; empty where nothing is seen.
PaintBox ContentOf(const PictureMovie& movie);

/// Pictures of a movie's frames.
class MoviePicture {
public:
    explicit MoviePicture(std::shared_ptr<const PictureMovie> movie) : movie_(std::move(movie)) {}

    const PictureMovie& Movie() const { return *movie_; }
    /// `frame` from 1; behind the last one the timeline begins anew, and sprites go on.
    Raster Draw(Long frame, const PictureView& view);
    /// The last picture came to its deadline and is not complete.
    bool GivenUp() const { return blGivenUp_; }

private:
    bool blGivenUp_ = false;
    std::shared_ptr<const PictureMovie> movie_;
    PaintCache cache_;
};

}  // namespace tamber

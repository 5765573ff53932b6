#include "canvas/picture/MoviePicture.h"

#include <algorithm>
#include <cmath>

#include "canvas/picture/Painter.h"
#include "canvas/picture/TimelineDrawing.h"
#include "platform/twips.h"

namespace tamber {

namespace {

double WidthOf(const SwfRect& stage) {
    return std::max(double(stage.xMax) - stage.xMin, 1.0) / TwipsPerPixel;
}

double HeightOf(const SwfRect& stage) {
    return std::max(double(stage.yMax) - stage.yMin, 1.0) / TwipsPerPixel;
}

std::uint32_t PixelOf(PictureColor color) {
    return 0xFF000000u | std::uint32_t{color.R} << 16 | std::uint32_t{color.G} << 8 | color.B;
}

}  // namespace

PictureView ViewOfStage(const SwfRect& stage, double scale) {
    PictureView view;
    const auto side = [scale](double length) {
        return std::max(static_cast<Long>(std::lround(length * scale)), 1);
    };
    view.Width = side(WidthOf(stage));
    view.Height = side(HeightOf(stage));
    view.Options.Scale = scale;
    return view;
}

PictureView ViewOfSize(const SwfRect& stage, Long width, Long height) {
    PictureView view;
    view.Width = width;
    view.Height = height;
    view.Options.Scale = std::min(width / WidthOf(stage), height / HeightOf(stage));
    view.Left = (width - WidthOf(stage) * view.Options.Scale) / 2;
    view.Top = (height - HeightOf(stage) * view.Options.Scale) / 2;
    return view;
}

PaintState StateOfStage(const PictureMovie& movie, Long frame, const PictureView& view) {
    const double scale = view.Options.Scale / TwipsPerPixel;
    PaintState state;
    state.Options = &view.Options;
    state.Matrix = {scale,
                    0,
                    0,
                    scale,
                    view.Left - movie.Stage.xMin * scale,
                    view.Top - movie.Stage.yMin * scale};
    state.Frame = std::max(frame, 1) - 1;
    return state;
}

void ClearStage(const PictureMovie& movie, const PictureView& view, const PaintBox& box,
                Raster& picture) {
    const std::uint32_t ground = view.blTransparent ? 0 : PixelOf(movie.Background);
    for (auto y = static_cast<Long>(box.Top); y < static_cast<Long>(box.Bottom); ++y)
        std::fill(picture.Row(y) + static_cast<Long>(box.Left),
                  picture.Row(y) + static_cast<Long>(box.Right), ground);
}

PaintBox ContentOf(const PictureMovie& movie) {
    const PaintOptions options{.Scale = TwipsPerPixel};
    PaintState state;
    state.Options = &options;
    PaintBox box;
    for (const auto& placement : ShownOf(movie.Main, state))
        box.Add(BoundsOf(*placement, StateOf(*placement, movie.Main, state)));
    // Beyond what any picture could show.
    constexpr double Far = 1 << 24;
    return box.IsEmpty() ? box : box.Cut({-Far, -Far, Far, Far});
}

Raster MoviePicture::Draw(Long frame, const PictureView& view) {
    Raster picture(view.Width, view.Height);
    blGivenUp_ = false;
    if (picture.IsEmpty()) return picture;
    const PaintBox whole{0, 0, double(view.Width), double(view.Height)};
    ClearStage(*movie_, view, whole, picture);
    try {
        Painter(picture, whole, cache_).Draw(movie_->Main, StateOfStage(*movie_, frame, view));
    } catch (const PictureGivenUp&) {
        blGivenUp_ = true;
    }
    return picture;
}

}  // namespace tamber

#include "canvas/picture/FramePicture.h"

#include <algorithm>
#include <cmath>

#include "canvas/picture/Painter.h"
#include "canvas/picture/TimelineDrawing.h"

namespace tamber {

namespace {

bool SameMatrix(const cairo_matrix_t& a, const cairo_matrix_t& b) {
    return a.xx == b.xx && a.yx == b.yx && a.xy == b.xy && a.yy == b.yy && a.x0 == b.x0 &&
           a.y0 == b.y0;
}

/// Both look the same, whatever stands around them.
bool LookAlike(const Placement& a, const Placement& b) {
    return a.Shown == b.Shown && SameMatrix(a.Matrix, b.Matrix) && a.Colors == b.Colors &&
           a.Ratio == b.Ratio && a.ClipDepth == b.ClipDepth && a.Filters == b.Filters &&
           a.Blend == b.Blend && a.Name == b.Name;
}

bool IsWhole(double value) {
    return value == std::floor(value);
}

bool SameOptions(const PaintOptions& a, const PaintOptions& b) {
    return a.Scale == b.Scale && a.blAnimate == b.blAnimate && a.blQuick == b.blQuick &&
           a.Texts == b.Texts;
}

bool SameStage(const PictureMovie& a, const PictureMovie& b) {
    return a.Stage == b.Stage && a.Background == b.Background;
}

}  // namespace

bool FramePicture::CanMove(const PictureMovie& movie, const PictureView& view) const {
    return movie_ && SameStage(*movie_, movie) && view.Width == view_.Width &&
           view.Height == view_.Height && view.blTransparent == view_.blTransparent &&
           SameOptions(view.Options, view_.Options) && IsWhole(view.Left - view_.Left) &&
           IsWhole(view.Top - view_.Top);
}

/// Moves the pixels; what comes from outside is to be drawn.
void FramePicture::MoveBy(Long x, Long y) {
    const Long width = picture_.Width();
    const Long height = picture_.Height();
    if (std::abs(x) >= width || std::abs(y) >= height) {
        drawn_.push_back({0, 0, double(width), double(height)});
        return;
    }
    const Long count = width - std::abs(x);
    for (Long i = 0; i < height - std::abs(y); ++i) {
        const Long to = y > 0 ? height - 1 - i : i;
        const std::uint32_t* from = picture_.Row(to - y) + std::max(-x, 0);
        std::copy_n(std::vector<std::uint32_t>(from, from + count).data(), count,
                    picture_.Row(to) + std::max(x, 0));
    }
    if (x != 0)
        drawn_.push_back({x > 0 ? 0.0 : double(width + x), 0, x > 0 ? double(x) : double(width),
                          double(height)});
    if (y != 0)
        drawn_.push_back({0, y > 0 ? 0.0 : double(height + y), double(width),
                          y > 0 ? double(y) : double(height)});
    for (Element& element : elements_) {
        element.Bounds.Left += x;
        element.Bounds.Right += x;
        element.Bounds.Top += y;
        element.Bounds.Bottom += y;
    }
}

PaintBox FramePicture::Difference(const std::vector<Element>& elements, bool animate) const {
    PaintBox box;
    auto was = elements_.begin();
    for (const Element& is : elements) {
        while (was != elements_.end() && was->Placed->Depth < is.Placed->Depth)
            box.Add((was++)->Bounds);
        const bool stays = was != elements_.end() && was->Placed->Depth == is.Placed->Depth;
        const bool plays = animate && is.Placed->Shown->Nesting() > 0;
        if (stays && !plays && LookAlike(*was->Placed, *is.Placed)) {
            ++was;
            continue;
        }
        box.Add(is.Bounds);
        if (stays) box.Add((was++)->Bounds);
    }
    for (; was != elements_.end(); ++was) box.Add(was->Bounds);
    return box;
}

void FramePicture::Draw(const PaintBox& box, const PaintState& state) {
    ClearStage(*movie_, view_, box, picture_);
    Painter(picture_, box, cache_).Draw(movie_->Main, state);
}

const Raster& FramePicture::Show(const std::shared_ptr<const PictureMovie>& movie, Long frame,
                                 const PictureView& view) {
    const PaintBox whole{0, 0, double(view.Width), double(view.Height)};
    drawn_.clear();
    const bool moves = CanMove(*movie, view);
    if (moves) {
        MoveBy(static_cast<Long>(view.Left - view_.Left), static_cast<Long>(view.Top - view_.Top));
    } else {
        picture_ = Raster(view.Width, view.Height);
        // What filters made of a field may hold its former text.
        if (view.Options.Texts != view_.Options.Texts) cache_ = PaintCache();
        elements_.clear();
        drawn_.push_back(whole);
    }
    movie_ = movie;
    view_ = view;
    if (picture_.IsEmpty()) return picture_;
    const PaintState state = StateOfStage(*movie_, frame, view_);
    std::vector<Element> elements;
    try {
        for (const auto& placement : ShownOf(movie_->Main, state))
            elements.push_back(
                {placement, BoundsOf(*placement, StateOf(*placement, movie_->Main, state))});
        const PaintBox changed = Difference(elements, view.Options.blAnimate).Outwards().Cut(whole);
        elements_ = std::move(elements);
        if (moves && !changed.IsEmpty()) drawn_.push_back(changed);
        for (const PaintBox& box : drawn_) Draw(box, state);
    } catch (const PictureGivenUp&) {
        // The next one begins anew.
        movie_.reset();
    }
    return picture_;
}

}  // namespace tamber

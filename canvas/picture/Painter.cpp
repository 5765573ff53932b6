#include "canvas/picture/Painter.h"

#include <algorithm>
#include <cmath>

#include "canvas/picture/BitmapCharacter.h"
#include "canvas/picture/GradientPattern.h"
#include "canvas/picture/RasterBlend.h"
#include "canvas/picture/RasterColors.h"
#include "canvas/picture/TimelineDrawing.h"
#include "platform/twips.h"

namespace tamber {

namespace {

constexpr PaintBox Nowhere{1, 1, 0, 0};

PictureColor Changed(PictureColor color, const PaintState& state) {
    if (state.blMask) return {0, 0, 0, 255};
    const auto changed = [](Long value, Long mult, Long add) {
        return static_cast<Byte>(std::clamp(value * mult / 256 + add, 0, 255));
    };
    const SwfColorTransform& by = state.Colors;
    return {changed(color.R, by.MultR, by.AddR), changed(color.G, by.MultG, by.AddG),
            changed(color.B, by.MultB, by.AddB), changed(color.A, by.MultA, by.AddA)};
}

/// Cairo takes no matrix that cannot be turned back, and keeps the error.
bool Inverted(cairo_matrix_t& matrix) {
    return std::isfinite(matrix.x0) && std::isfinite(matrix.y0) &&
           cairo_matrix_invert(&matrix) == CAIRO_STATUS_SUCCESS;
}

bool CanDraw(cairo_matrix_t matrix) {
    return Inverted(matrix);
}

Raster RasterOf(const PaintBox& box) {
    return Raster(static_cast<Long>(box.Right - box.Left), static_cast<Long>(box.Bottom - box.Top));
}

double AreaOf(const PaintBox& box) {
    return box.IsEmpty() ? 0 : (box.Right - box.Left) * (box.Bottom - box.Top);
}

PaintBox WholeOf(const Raster& raster) {
    return {0, 0, double(raster.Width()), double(raster.Height())};
}

PaintState MovedBy(PaintState state, double x, double y) {
    state.Matrix.x0 += x;
    state.Matrix.y0 += y;
    return state;
}

Raster CopyOf(const Raster& from, const PaintBox& box) {
    Raster copy = RasterOf(box);
    const auto left = static_cast<Long>(box.Left);
    const auto top = static_cast<Long>(box.Top);
    for (Long y = 0; y < copy.Height(); ++y)
        std::copy_n(from.Row(top + y) + left, copy.Width(), copy.Row(y));
    return copy;
}

/// `from` as far as `share` (of 255) says, else `to`.
std::uint32_t Mixed(std::uint32_t from, std::uint32_t to, std::uint32_t share) {
    std::uint32_t mixed = 0;
    for (int shift = 0; shift < 32; shift += 8) {
        const std::uint32_t sum =
            (from >> shift & 255) * share + (to >> shift & 255) * (255 - share);
        mixed |= (sum + 127) / 255 << shift;
    }
    return mixed;
}

/// The length of the image of an axis' unit.
double Stretch(double x, double y) {
    return std::hypot(x, y);
}

/// How far a curve may lie from the lines that stand for it, pixels.
constexpr double Tolerance = 0.2;

/// Pixels that filters work on; more are drawn smaller.
constexpr double MostFilteredPixels = 1 << 22;
/// Pixels of a filtered object that is kept for the next picture.
constexpr double MostKeptPixels = 1 << 20;

/// A picture that is shown at half its size or less, halved as often as it still has all the pixels
/// that are seen; `matrix` from its pixels to twips follows. Far fewer of them are looked at.
std::shared_ptr<const BitmapCharacter> SmallEnough(std::shared_ptr<const BitmapCharacter> bitmap,
                                                   const PaintState& state,
                                                   cairo_matrix_t& matrix) {
    cairo_matrix_t shown;
    cairo_matrix_multiply(&shown, &matrix, &state.Matrix);
    double scale = std::max(Stretch(shown.xx, shown.yx), Stretch(shown.xy, shown.yy));
    for (; scale > 0 && scale <= 0.5 && bitmap->Pixels().Pixels().size() > 1; scale *= 2) {
        bitmap = bitmap->Halved();
        cairo_matrix_scale(&matrix, 2, 2);
    }
    return bitmap;
}

/// Modes that blend the opacity of the layer around them; where there is none nothing is seen.
bool NeedsLayer(BlendMode mode) {
    return mode == BlendMode::Alpha || mode == BlendMode::Erase;
}

}  // namespace

Painter::Painter(Raster& target, PaintBox clip, PaintCache& cache, Ground ground)
    : target_(target),
      clip_(clip.Cut(WholeOf(target))),
      cache_(cache),
      ground_(ground),
      surface_(target),
      context_(cairo_create(surface_.get())) {
    if (clip_.IsEmpty()) clip_ = Nowhere;
    cairo_rectangle(context_, clip_.Left, clip_.Top, clip_.Right - clip_.Left,
                    clip_.Bottom - clip_.Top);
    cairo_clip(context_);
    cairo_set_tolerance(context_, Tolerance);
}

Painter::~Painter() {
    cairo_destroy(context_);
}

Painter::Clipping::Clipping(Painter& painter, const PicturePath& path, const PaintState& state,
                            bool hard)
    : context_(painter.context_) {
    cairo_save(context_);
    if (!CanDraw(state.Matrix)) return;
    cairo_set_matrix(context_, &state.Matrix);
    cairo_new_path(context_);
    path.AppendTo(context_);
    if (hard) cairo_set_antialias(context_, CAIRO_ANTIALIAS_NONE);
    cairo_clip(context_);
    cairo_set_antialias(context_, CAIRO_ANTIALIAS_DEFAULT);
}

Painter::Clipping::~Clipping() {
    cairo_restore(context_);
}

void Painter::Draw(const Timeline& timeline, const PaintState& state) {
    const DisplayList& list = ShownOf(timeline, state);
    DrawRange(timeline, list, state);
}

void Painter::DrawRange(const Timeline& timeline, Range range, const PaintState& parent) {
    for (std::size_t i = 0; i < range.size(); ++i) {
        const Placement& placement = *range[i];
        if (placement.ClipDepth == 0) {
            DrawPlacement(placement, StateOf(placement, timeline, parent));
            continue;
        }
        std::size_t end = i + 1;
        while (end < range.size() && range[end]->Depth <= placement.ClipDepth) ++end;
        DrawMasked(timeline, placement, range.subspan(i + 1, end - i - 1), parent);
        i = end - 1;
    }
}

/// What is clipped is drawn over a copy of what lies below, so that it blends with that, and what
/// shows of the copy is taken back.
void Painter::DrawMasked(const Timeline& timeline, const Placement& mask, Range range,
                         const PaintState& parent) {
    PaintState state = StateOf(mask, timeline, parent);
    state.blMask = true;
    const PaintBox box = BoundsOf(mask, state).Outwards().Cut(clip_);
    if (box.IsEmpty() || range.empty()) return;
    cairo_surface_flush(surface_.get());
    Raster inside = CopyOf(target_, box);
    Raster cover = RasterOf(box);
    if (inside.IsEmpty()) return;
    Painter(inside, WholeOf(inside), cache_, ground_)
        .DrawRange(timeline, range, MovedBy(parent, -box.Left, -box.Top));
    Painter(cover, WholeOf(cover), cache_).DrawPlacement(mask, MovedBy(state, -box.Left, -box.Top));
    for (Long y = 0; y < cover.Height(); ++y) {
        std::uint32_t* below =
            target_.Row(static_cast<Long>(box.Top) + y) + static_cast<Long>(box.Left);
        for (Long x = 0; x < cover.Width(); ++x)
            below[x] = Mixed(inside.Row(y)[x], below[x], cover.Row(y)[x] >> 24);
    }
    cairo_surface_mark_dirty(surface_.get());
}

void Painter::DrawPlacement(const Placement& placement, const PaintState& state) {
    if (!BoundsOf(placement, state).Meets(clip_)) return;
    const bool blends = placement.Blend > BlendMode::Normal && !state.blMask;
    if (placement.Filters.empty() && !blends)
        placement.Shown->Draw(*this, state);
    else
        DrawGroup(placement, state);
}

void Painter::DrawGroup(const Placement& placement, const PaintState& state) {
    if (NeedsLayer(placement.Blend) && ground_ == Ground::Stage) return;
    if (placement.Filters.empty())
        return BlendGroup(DrawApart(placement, state, FilterSource(placement, state)), 0, 0,
                          placement.Blend);
    const double area = AreaOf(FilterSource(placement, state));
    if (area > MostFilteredPixels)
        return BlendGroup(FilteredSmall(placement, state, std::sqrt(MostFilteredPixels / area)), 0,
                          0, placement.Blend);
    if (AreaOf(BoundsOf(placement, state)) > MostKeptPixels || state.blMask)
        return BlendGroup(Filtered(placement, state), 0, 0, placement.Blend);
    // Whatever is seen of it now, the whole of it serves the next picture, too.
    const double left = std::floor(state.Matrix.x0);
    const double top = std::floor(state.Matrix.y0);
    PaintState atOrigin = MovedBy(state, -left, -top);
    const PaintCache::FilterKey key{placement.Shown,      atOrigin.Matrix, state.Colors,
                                    placement.Filters,    state.Ratio,     state.Frame,
                                    state.Options->Scale, placement.Name};
    const auto kept = cache_.Filtered(key, [&] {
        return FilteredWithin(placement, atOrigin, placement.Shown->Bounds(atOrigin).Outwards());
    });
    BlendGroup(*kept, static_cast<Long>(left), static_cast<Long>(top), placement.Blend);
}

void Painter::BlendGroup(const FilteredRaster& group, Long x, Long y, BlendMode mode) {
    if (group.Pixels.IsEmpty()) return;
    cairo_surface_flush(surface_.get());
    Blend(target_, group.Pixels, group.Left + x, group.Top + y, mode, clip_);
    cairo_surface_mark_dirty(surface_.get());
}

/// The pixels around a placement that its filters need for what is seen of it.
PaintBox Painter::FilterSource(const Placement& placement, const PaintState& state) const {
    const FilterMargin margin = MarginOf(placement.Filters, state.Options->Scale);
    PaintBox needed = clip_;
    needed.Grow(std::max({margin.Left, margin.Top, margin.Right, margin.Bottom}));
    return placement.Shown->Bounds(state).Outwards().Cut(needed.Outwards());
}

FilteredRaster Painter::DrawApart(const Placement& placement, const PaintState& state,
                                  const PaintBox& box) const {
    FilteredRaster drawn{RasterOf(box), static_cast<Long>(box.Left), static_cast<Long>(box.Top)};
    if (drawn.Pixels.IsEmpty()) return drawn;
    Painter inner(drawn.Pixels, WholeOf(drawn.Pixels), cache_, Ground::Layer);
    placement.Shown->Draw(inner, MovedBy(state, -box.Left, -box.Top));
    return drawn;
}

FilteredRaster Painter::Filtered(const Placement& placement, const PaintState& state) const {
    return FilteredWithin(placement, state, FilterSource(placement, state));
}

/// Filters work on the colours as they are, those of the placement change behind them.
FilteredRaster Painter::FilteredWithin(const Placement& placement, const PaintState& state,
                                       const PaintBox& box) const {
    if (box.IsEmpty()) return {};
    PaintState plain = state;
    plain.Colors = {};
    const FilteredRaster drawn = DrawApart(placement, plain, box);
    FilteredRaster made = ApplyFilters(drawn.Pixels, placement.Filters, state.Options->Scale);
    made.Left += drawn.Left;
    made.Top += drawn.Top;
    ApplyColors(made.Pixels, state.Colors);
    return made;
}

/// As `Filtered`, but drawn smaller and stretched: what is blurred so far has no fine parts.
FilteredRaster Painter::FilteredSmall(const Placement& placement, const PaintState& state,
                                      double factor) const {
    PaintOptions options = *state.Options;
    options.Scale *= factor;
    PaintState small = state;
    small.Options = &options;
    const cairo_matrix_t shrink{factor, 0, 0, factor, 0, 0};
    cairo_matrix_multiply(&small.Matrix, &state.Matrix, &shrink);
    const PaintBox seen = clip_.Under(shrink).Outwards();
    Raster room = RasterOf({0, 0, seen.Right, seen.Bottom});
    const FilteredRaster made =
        Painter(room, seen, cache_, Ground::Layer).Filtered(placement, small);
    FilteredRaster drawn{RasterOf(clip_), static_cast<Long>(clip_.Left),
                         static_cast<Long>(clip_.Top)};
    if (made.Pixels.IsEmpty()) return drawn;
    const RasterSurface from(made.Pixels);
    const RasterSurface to(drawn.Pixels);
    cairo_t* context = cairo_create(to.get());
    cairo_translate(context, -clip_.Left, -clip_.Top);
    cairo_scale(context, 1 / factor, 1 / factor);
    cairo_set_source_surface(context, from.get(), made.Left, made.Top);
    cairo_paint(context);
    cairo_destroy(context);
    return drawn;
}

void Painter::Fill(const PicturePath& path, const PictureFill& fill, const PaintState& state,
                   cairo_fill_rule_t rule) {
    if (path.IsEmpty() || !CanDraw(state.Matrix)) return;
    cairo_set_matrix(context_, &state.Matrix);
    if (!SetSource(fill, state)) return;
    cairo_new_path(context_);
    path.AppendTo(context_);
    cairo_set_fill_rule(context_, rule);
    cairo_fill(context_);
}

void Painter::Stroke(const PicturePath& path, const PictureLine& line, const PaintState& state) {
    if (path.IsEmpty() || !CanDraw(state.Matrix)) return;
    cairo_set_matrix(context_, &state.Matrix);
    if (!SetSource(line.Paint, state)) return;
    cairo_new_path(context_);
    path.AppendTo(context_);
    const double width = std::max(line.Width, double(TwipsPerPixel));
    cairo_matrix_t pen = state.Matrix;
    if (line.blNoScaleX || line.blNoScaleY) {
        const double stage = state.Options->Scale / TwipsPerPixel;
        pen = {line.blNoScaleX ? stage : Stretch(pen.xx, pen.yx), 0, 0,
               line.blNoScaleY ? stage : Stretch(pen.xy, pen.yy), 0, 0};
    }
    if (!CanDraw(pen)) return;
    cairo_set_matrix(context_, &pen);
    cairo_set_line_width(context_, width);
    cairo_set_line_cap(context_, line.Cap);
    cairo_set_line_join(context_, line.Join);
    cairo_set_miter_limit(context_, line.MiterLimit);
    if (state.Options->blQuick) cairo_set_antialias(context_, CAIRO_ANTIALIAS_FAST);
    cairo_stroke(context_);
    cairo_set_antialias(context_, CAIRO_ANTIALIAS_DEFAULT);
}

void Painter::DrawBox(const PaintBox& box, const PaintState& state) {
    const PictureColor color = Changed({}, state);
    cairo_identity_matrix(context_);
    cairo_new_path(context_);
    for (const auto& [x, y] : {std::pair(box.Left, box.Top), std::pair(box.Right, box.Top),
                               std::pair(box.Right, box.Bottom), std::pair(box.Left, box.Bottom)}) {
        double outX = x;
        double outY = y;
        cairo_matrix_transform_point(&state.Matrix, &outX, &outY);
        cairo_line_to(context_, std::floor(outX) + 0.5, std::floor(outY) + 0.5);
    }
    cairo_close_path(context_);
    SetColor(color);
    cairo_set_line_width(context_, 1);
    cairo_set_line_join(context_, CAIRO_LINE_JOIN_MITER);
    cairo_stroke(context_);
}

void Painter::SetColor(PictureColor color) {
    constexpr double One = 255;
    cairo_set_source_rgba(context_, color.R / One, color.G / One, color.B / One, color.A / One);
}

bool Painter::SetSource(const PictureFill& fill, const PaintState& state) {
    if (fill.What == PictureFill::Kind::Solid || state.blMask) {
        const PictureColor color = Changed(fill.Color, state);
        SetColor(color);
        return color.A > 0;
    }
    return fill.What == PictureFill::Kind::Bitmap ? SetBitmapSource(fill, state)
                                                  : SetGradientSource(fill, state);
}

bool Painter::SetBitmapSource(const PictureFill& fill, const PaintState& state) {
    if (!fill.Bitmap) return false;
    cairo_matrix_t matrix = fill.Matrix;
    auto bitmap = cache_.Tinted(fill.Bitmap, state.Colors);
    if (state.Options->blQuick && fill.blSmooth) bitmap = SmallEnough(bitmap, state, matrix);
    if (!Inverted(matrix)) return false;
    const PatternPointer pattern(cairo_pattern_create_for_surface(bitmap->Surface()));
    cairo_pattern_set_matrix(pattern.get(), &matrix);
    cairo_pattern_set_extend(pattern.get(), fill.Spread);
    cairo_pattern_set_filter(pattern.get(),
                             fill.blSmooth ? CAIRO_FILTER_BILINEAR : CAIRO_FILTER_NEAREST);
    cairo_set_source(context_, pattern.get());
    return true;
}

bool Painter::SetGradientSource(const PictureFill& fill, const PaintState& state) {
    PictureFill changed = fill;
    for (GradientStop& stop : changed.Stops) stop.Color = Changed(stop.Color, state);
    const PatternPointer pattern = GradientPattern(changed);
    if (!pattern) return false;
    cairo_set_source(context_, pattern.get());
    return true;
}

}  // namespace tamber

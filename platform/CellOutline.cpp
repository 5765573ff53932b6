#include "platform/CellOutline.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <span>

namespace tamber {

namespace {

/// Largest distance between a cubic and its quadratics, units of the cell. Half a unit would do for
/// the eye; rounding the points to whole units takes its own part of it.
constexpr double CubicTolerance = 0.25;

/// Fewer points enclose nothing; faces use them as anchors.
constexpr std::size_t LeastPoints = 3;

/// Rounds half to even; the low 32 bits of a number below 2^51.
Long Rounded(double value) {
    // In a double of this size the lowest bit of the fraction counts ones.
    constexpr double Ones = 0x1.8p52;
    return static_cast<Long>(std::bit_cast<std::int64_t>(value + Ones));
}

OutlinePoint Placed(FinePoint point, Long ascent) {
    // The ends of the range go round; points there are too far off in any case.
    const auto y =
        static_cast<std::uint32_t>(ascent) - static_cast<std::uint32_t>(Rounded(point.Y));
    return {Rounded(point.X), static_cast<Long>(y)};
}

/// A point of the face in units of the cell, y upwards, before it is rounded.
FinePoint Scaled(const FT_Vector& point, const CellPlacement& placement) {
    const double x = static_cast<Long>(point.x);
    const double y = static_cast<Long>(point.y);
    return {CellUnits(x + placement.Shear * y, placement), CellUnits(y, placement)};
}

FinePoint Middle(FinePoint a, FinePoint b) {
    return {(a.X + b.X) / 2, (a.Y + b.Y) / 2};
}

/// Halves of sums are cut, as those of the format's splines are.
OutlinePoint Middle(OutlinePoint a, OutlinePoint b) {
    return {(a.X + b.X) / 2, (a.Y + b.Y) / 2};
}

/// Reads the closed runs of points of a face.
class ContourReader {
public:
    ContourReader(const FT_Outline& source, const CellPlacement& placement,
                  std::span<const OutlinePoint> placed, GlyphOutline& outline)
        : tags_(source.tags),
          points_(source.points),
          placement_(placement),
          placed_(placed),
          outline_(outline) {
        MakeRoom(placed.size());
    }

    /// The contour from a point up to that before `end`.
    bool Read(std::size_t first, std::size_t end);

private:
    int Kind(std::size_t i) const { return FT_CURVE_TAG(tags_[i]); }
    FinePoint Fine(std::size_t i) const { return Scaled(points_[i], placement_); }
    /// For so many edges more than those read.
    void MakeRoom(std::size_t edges) {
        if (outline_.Edges.size() < count_ + edges) outline_.Edges.resize(count_ + edges);
    }

    /// Finds where the contour begins, and which points are left to read.
    bool FindStart();
    /// Reads up to a cubic.
    void ReadQuadratics();
    bool ReadCubic();

    decltype(FT_Outline::tags) tags_;
    decltype(FT_Outline::points) points_;
    const CellPlacement& placement_;
    const std::span<const OutlinePoint> placed_;
    GlyphOutline& outline_;
    /// Edges read; behind them is room for one for each point that is left.
    std::size_t count_ = 0;
    std::size_t next_ = 0;
    std::size_t end_ = 0;
    FinePoint fineStart_;
    OutlinePoint start_;
};

bool ContourReader::Read(std::size_t first, std::size_t end) {
    next_ = first;
    end_ = end;
    const std::size_t before = count_;
    if (!FindStart()) return false;
    while (next_ < end_) {
        ReadQuadratics();
        if (next_ < end_ && !ReadCubic()) return false;
    }
    outline_.Contours.push_back({start_, static_cast<Long>(count_ - before)});
    return true;
}

bool ContourReader::FindStart() {
    if (Kind(next_) == FT_CURVE_TAG_ON)
        fineStart_ = Fine(next_++);
    else if (Kind(next_) != FT_CURVE_TAG_CONIC)
        return false;
    else if (Kind(end_ - 1) == FT_CURVE_TAG_ON)
        fineStart_ = Fine(--end_);
    else
        fineStart_ = Middle(Fine(next_), Fine(end_ - 1));
    start_ = Placed(fineStart_, placement_.Ascent);
    return true;
}

void ContourReader::ReadQuadratics() {
    // At hand, as the compiler cannot know that nothing else changes them.
    OutlineEdge* edge = outline_.Edges.data() + count_;
    const OutlinePoint* placed = placed_.data();
    const std::size_t end = end_;
    std::size_t i = next_;
    while (i < end && Kind(i) != FT_CURVE_TAG_CUBIC) {
        const OutlinePoint here = placed[i];
        const bool curved = Kind(i) == FT_CURVE_TAG_CONIC;
        ++i;
        OutlinePoint anchor = here;
        if (curved) {
            anchor = i == end ? start_ : placed[i];
            if (i == end || Kind(i) == FT_CURVE_TAG_ON)
                ++i;
            else
                anchor = Middle(here, anchor);
        }
        *edge++ = {here, anchor, curved};
    }
    next_ = std::min(i, end);
    count_ = static_cast<std::size_t>(edge - outline_.Edges.data());
}

bool ContourReader::ReadCubic() {
    // It stands behind a point on the curve.
    const std::size_t i = next_;
    if (Kind(i - 1) == FT_CURVE_TAG_CONIC) return false;
    if (i + 1 == end_ || Kind(i + 1) != FT_CURVE_TAG_CUBIC) return false;
    const bool last = i + 2 == end_;
    if (!last && Kind(i + 2) != FT_CURVE_TAG_ON) return false;
    const auto pieces = CutCubic(Fine(i - 1), Fine(i), Fine(i + 1), last ? fineStart_ : Fine(i + 2),
                                 CubicTolerance);
    MakeRoom(pieces.size() + placed_.size() - i);
    for (const QuadraticPiece& piece : pieces)
        outline_.Edges[count_++] = {Placed(piece.Control, placement_.Ascent),
                                    Placed(piece.End, placement_.Ascent), true};
    next_ = last ? end_ : i + 3;
    return true;
}

}  // namespace

/// The loop is of a form that a compiler makes vector code of.
bool CellOutline::PlacePoints(std::span<const FT_Vector> points, const CellPlacement& placement) {
    placed_.resize(points.size());
    // Of several numbers the "or" has the highest bit of the largest.
    constexpr std::uint32_t Farthest = GlyphOutlineRecord::Farthest;
    std::uint32_t reach = 0;
    const CellPlacement own = placement;
    OutlinePoint* placed = placed_.data();
    for (std::size_t i = 0; i < points.size(); ++i) {
        const OutlinePoint point = placed[i] = Placed(Scaled(points[i], own), own.Ascent);
        reach |= static_cast<std::uint32_t>(point.X) + Farthest;
        reach |= static_cast<std::uint32_t>(point.Y) + Farthest;
    }
    return reach < 2 * Farthest;
}

bool CellOutline::Read(const FT_Outline& source, const CellPlacement& placement,
                       GlyphOutline& outline) {
    if (!PlacePoints({source.points, static_cast<std::size_t>(source.n_points)}, placement))
        return false;
    ContourReader reader(source, placement, placed_, outline);
    std::size_t first = 0;
    for (int i = 0; i < source.n_contours; ++i) {
        const std::size_t end = static_cast<std::size_t>(source.contours[i]) + 1;
        if (end < first || end > placed_.size()) return false;
        if (end >= first + LeastPoints && !reader.Read(first, end)) return false;
        first = end;
    }
    return true;
}

}  // namespace tamber

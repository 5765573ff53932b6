#include "platform/CellOutline.h"

#include <bit>
#include <cstdint>
#include <span>

#include "platform/CubicCut.h"

namespace tamber {

namespace {

constexpr double CellSize = 1024;

/// Largest distance between a cubic and its quadratics, units of the cell. Half a unit would do for
/// the eye; rounding the points to whole units takes its own part of it.
constexpr double CubicTolerance = 0.25;

/// Fewer points enclose nothing; faces use them as anchors.
constexpr std::size_t LeastPoints = 3;

/// Rounds half to even. Points of faces are 16-bit numbers, and a cell is one unit high or more, so
/// that any of them fits.
Long Rounded(double value) {
    // In a double of this size the lowest bit of the fraction counts ones.
    constexpr double Ones = 0x1.8p52;
    return static_cast<Long>(std::bit_cast<std::int64_t>(value + Ones) & 0xFFFFFFFF);
}

/// One closed run of points of a face.
class ContourReader {
public:
    ContourReader(std::span<const FT_Vector> points, const FT_Outline& outline, std::size_t first,
                  const CellPlacement& placement, OutlineStore& store)
        : points_(points), tags_(outline.tags + first), placement_(placement), store_(store) {}

    bool Read(OutlineContour& contour);

private:
    int Kind(std::size_t i) const { return FT_CURVE_TAG(tags_[i]); }
    /// First point from `i` on, before `end_`, that is of another kind than `i`.
    std::size_t RunEnd(std::size_t i) const {
        std::size_t end = i + 1;
        while (end < end_ && Kind(end) == Kind(i)) ++end;
        return end;
    }

    /// Runs of points of one kind, each a curve at most unless cubics are cut.
    std::size_t CountRuns() const {
        std::size_t runs = 1;
        for (std::size_t i = next_ + 1; i < end_; ++i) runs += Kind(i) != Kind(i - 1);
        return runs;
    }

    FinePoint Scaled(double x, double y) const {
        return {CellUnits(x + placement_.Shear * y, placement_), CellUnits(y, placement_)};
    }
    FinePoint Scaled(const FT_Vector& point) const {
        return Scaled(static_cast<double>(point.x), static_cast<double>(point.y));
    }
    OutlinePoint Placed(FinePoint point) const {
        return {Rounded(point.X), placement_.Ascent - Rounded(point.Y)};
    }

    /// Adds a curve with room for its points, and gives these.
    std::vector<OutlinePoint>& AddCurve(OutlineContour& contour, Long type, std::size_t count) {
        OutlineCurve& curve = contour.Curves.emplace_back();
        curve.Type = type;
        curve.Points = store_.Points();
        curve.Points.reserve(count);
        return curve.Points;
    }

    /// Sets where the contour begins and which points are left to read.
    bool FindStart();
    void ReadLines(OutlineContour& contour);
    bool ReadSpline(OutlineContour& contour);
    bool ReadCubic(OutlineContour& contour);
    /// The on-curve point at `i` that ends a curve, behind which reading goes on; the contour's
    /// start when no point is left. False for a control point.
    bool TakeEnd(std::size_t i, FinePoint& end);

    std::span<const FT_Vector> points_;
    decltype(FT_Outline::tags) tags_;
    const CellPlacement& placement_;
    OutlineStore& store_;
    FinePoint start_;
    /// End of the curve read last.
    FinePoint pen_;
    std::size_t next_ = 0;
    std::size_t end_ = 0;
};

bool ContourReader::Read(OutlineContour& contour) {
    if (!FindStart()) return false;
    contour.Start = Placed(start_);
    contour.Curves = store_.Curves();
    contour.Curves.reserve(CountRuns());
    pen_ = start_;
    while (next_ < end_) {
        if (Kind(next_) == FT_CURVE_TAG_ON)
            ReadLines(contour);
        else if (!(Kind(next_) == FT_CURVE_TAG_CONIC ? ReadSpline(contour) : ReadCubic(contour)))
            return false;
    }
    return true;
}

bool ContourReader::FindStart() {
    end_ = points_.size();
    const FT_Vector& first = points_.front();
    const FT_Vector& last = points_.back();
    if (Kind(0) == FT_CURVE_TAG_ON) {
        start_ = Scaled(first);
        next_ = 1;
        return true;
    }
    if (Kind(0) != FT_CURVE_TAG_CONIC) return false;
    if (Kind(end_ - 1) == FT_CURVE_TAG_ON) {
        start_ = Scaled(last);
        --end_;
    } else {
        start_ = Scaled(static_cast<double>(first.x + last.x) / 2,
                        static_cast<double>(first.y + last.y) / 2);
    }
    return true;
}

void ContourReader::ReadLines(OutlineContour& contour) {
    const std::size_t end = RunEnd(next_);
    std::vector<OutlinePoint>& points = AddCurve(contour, OutlineCurve::Lines, end - next_);
    for (; next_ < end; ++next_) {
        pen_ = Scaled(points_[next_]);
        points.push_back(Placed(pen_));
    }
}

bool ContourReader::ReadSpline(OutlineContour& contour) {
    const std::size_t end = RunEnd(next_);
    std::vector<OutlinePoint>& points = AddCurve(contour, OutlineCurve::Spline, end - next_ + 1);
    for (std::size_t i = next_; i < end; ++i) points.push_back(Placed(Scaled(points_[i])));
    if (!TakeEnd(end, pen_)) return false;
    points.push_back(Placed(pen_));
    return true;
}

bool ContourReader::ReadCubic(OutlineContour& contour) {
    const FinePoint from = pen_;
    if (RunEnd(next_) != next_ + 2) return false;
    const FinePoint control1 = Scaled(points_[next_]);
    const FinePoint control2 = Scaled(points_[next_ + 1]);
    if (!TakeEnd(next_ + 2, pen_)) return false;
    // The middles between these control points are not implied, so each piece is a spline of its
    // own.
    for (const QuadraticPiece& piece : CutCubic(from, control1, control2, pen_, CubicTolerance)) {
        std::vector<OutlinePoint>& points = AddCurve(contour, OutlineCurve::Spline, 2);
        points.push_back(Placed(piece.Control));
        points.push_back(Placed(piece.End));
    }
    return true;
}

bool ContourReader::TakeEnd(std::size_t i, FinePoint& end) {
    if (i < end_ && Kind(i) != FT_CURVE_TAG_ON) return false;
    end = i < end_ ? Scaled(points_[i]) : start_;
    next_ = i + 1;
    return true;
}

}  // namespace

double CellUnits(double value, const CellPlacement& placement) {
    return value * CellSize / placement.CellHeight;
}

bool AddContours(const FT_Outline& outline, const CellPlacement& placement, OutlineStore& store,
                 std::vector<OutlineContour>& contours) {
    const std::span points(outline.points, static_cast<std::size_t>(outline.n_points));
    contours.reserve(static_cast<std::size_t>(outline.n_contours));
    std::size_t first = 0;
    for (int i = 0; i < outline.n_contours; ++i) {
        const std::size_t end = static_cast<std::size_t>(outline.contours[i]) + 1;
        if (end > points.size()) return false;
        if (end >= first + LeastPoints) {
            ContourReader reader(points.subspan(first, end - first), outline, first, placement,
                                 store);
            if (!reader.Read(contours.emplace_back())) return false;
        }
        first = end;
    }
    return true;
}

}  // namespace tamber

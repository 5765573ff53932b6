#pragma once

#include <vector>

#include "swf/SwfTypes.h"
#include "vector/SvgNumbers.h"

namespace tamber {

/// One affine transformation of twips.
struct clsSvgMatrixData {
    Single ScaleX = 1;
    Single ScaleY = 1;
    Single Skew0 = 0;  ///< y from x
    Single Skew1 = 0;  ///< x from y
    Long sftX = 0;     ///< twips
    Long sftY = 0;
};

/// Transformations in the order in which they are applied.
using SvgMatrixList = std::vector<clsSvgMatrixData>;

/// Appends what a `transform` attribute names.
void ParseTransformList(std::string_view text, SvgMatrixList& matrices);

/// The way of a point from a drawing element to the stage: first through the element's own
/// transformations, then through those around it.
struct SvgTransformation {
    const SvgMatrixList& Own;
    const SvgMatrixList& Around;

    SwfPoint MapPoint(Long x, Long y) const {
        SinglePoint point{static_cast<Single>(x), static_cast<Single>(y)};
        for (const clsSvgMatrixData& matrix : Own) point = Apply(matrix, point);
        for (const clsSvgMatrixData& matrix : Around) point = Apply(matrix, point);
        return {ToSvgTwips(point.X), ToSvgTwips(point.Y)};
    }
    /// Sum of the scales along both axes, 2 where nothing is scaled.
    Single WidthScale() const;
    /// Where parts of a drawing stand at the farthest, as a rule; twips.
    static constexpr double UsualReach = 10000;
    /// Whether what reaches so far from the origin would stand elsewhere if in each of the lists
    /// the last came first.
    bool DependsOnOrder(double reach = UsualReach) const;

private:
    struct SinglePoint {
        Single X;
        Single Y;
    };
    static SinglePoint Apply(const clsSvgMatrixData& m, SinglePoint p) {
        return {m.ScaleX * p.X + m.Skew1 * p.Y + static_cast<Single>(m.sftX),
                m.Skew0 * p.X + m.ScaleY * p.Y + static_cast<Single>(m.sftY)};
    }
};

/// Transformations merged into one.
struct SvgAffine {
    struct Point {
        double X = 0;
        double Y = 0;
    };

    double A = 1, B = 0, C = 0, D = 1;
    double E = 0, F = 0;

    Point Map(Point p) const { return {A * p.X + C * p.Y + E, B * p.X + D * p.Y + F}; }
    Point MapVector(Point p) const { return {A * p.X + C * p.Y, B * p.X + D * p.Y}; }
    /// Adds a transformation that comes after those merged so far.
    void Then(const clsSvgMatrixData& next);
    void Then(const SvgMatrixList& list);
    /// Adds those of a list, its last first.
    void ThenBackward(const SvgMatrixList& list);
    /// Whether it takes a place that is not farther than `reach` from the origin to another one
    /// than `other` does, and not only because shifts are rounded to twips.
    bool IsElsewhere(const SvgAffine& other, double reach) const;
};

}  // namespace tamber

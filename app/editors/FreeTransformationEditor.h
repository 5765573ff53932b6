#pragma once

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>

#include "vector/CornerPoints.h"
#include "vector/clsVectorData.h"

namespace tamber {

/// Edits the four corners that a drawing is stretched over.
class FreeTransformationEditor {
public:
    /// Size in pixels of the drawing as it was read.
    FreeTransformationEditor(std::shared_ptr<const clsVectorData> artwork, Long width, Long height);

    /// How far a corner may go from the drawing's own origin, pixels either way: an edge between
    /// two of them is one that a shape can hold, or the drawing is that large by itself.
    Long Limit() const { return std::max({ShapeLimit, width_, height_}); }
    const CornerPoints& Corners() const { return corners_; }
    /// False, and nothing changes, when one lies out of range.
    bool Corners(const CornerPoints& corners);
    /// Puts a corner, 0 to 3 from the top left around, at pixels. False when it is out of range,
    /// which is told, and the corner stays.
    bool Put(std::size_t corner, double x, double y);
    /// The same by hand: held within the range, without a word.
    void Drag(std::size_t corner, double x, double y);
    /// The corner within `reach` pixels of a place.
    std::optional<std::size_t> Find(double x, double y, double reach) const;
    /// The rectangle as it was.
    void SetDefault();
    bool IsDefault() const;
    /// The drawing stretched over the corners, always from the one that was read.
    std::shared_ptr<const clsVectorData> Preview() const;

private:
    /// Edges are told in 17 bits of twips.
    static constexpr Long ShapeLimit = 1600;

    CornerPoints DefaultCorners() const;
    bool InRange(double pixels) const { return std::abs(pixels) <= Limit(); }
    Long Held(double pixels) const;

    std::shared_ptr<const clsVectorData> artwork_;
    Long width_;
    Long height_;
    CornerPoints corners_;
};

}  // namespace tamber

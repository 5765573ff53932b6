#pragma once

#include <algorithm>
#include <bit>

#include "swf/mdlSWFTag.h"
#include "swf/tags/clsSWFTShapeRecord.h"

namespace tamber {

/// How edge records lie in the stream: a bit 1; a bit 1 for a straight edge, 0 for a curve; four
/// bits of the width of the fields less 2; the fields, distances from the point before. They stand
/// in a header, so that whoever walks over edges writes each without a call.
namespace shape_edge {

/// Widest field that a record can tell, and its range.
inline constexpr Long MaxBits = 17;
inline constexpr Long Farthest = 0xFFFF;
inline constexpr Long FarthestBack = -0x10000;
/// Bits of the longest record.
inline constexpr std::size_t LongestRecord = 6 + 4 * MaxBits;

/// Difference of two places, wrapped as the 32-bit stream holds it.
inline Long Delta(Long to, Long from) {
    return static_cast<Long>(static_cast<std::uint32_t>(to) - static_cast<std::uint32_t>(from));
}

/// Bits that a number has beside its sign; those of several are joined by "or".
inline std::uint32_t Magnitude(Long value) {
    return static_cast<std::uint32_t>(value ^ (value >> 31));
}

/// Width of the fields of an edge: at least 3, which the second bit stands for.
inline Long Width(std::uint32_t magnitudes) {
    // Written so that it becomes the one instruction that finds the highest bit.
    return (31 ^ __builtin_clz(magnitudes | 2u)) + 2;
}

inline std::uint64_t Field(Long value, Long width) {
    return static_cast<std::uint32_t>(value) & ((std::uint64_t{1} << width) - 1);
}

/// A line beyond the range is cut.
inline void Save(const clsSWFTShapeStraightEdge& edge, ShapePen& pen, mdlSWFTag::BitRun& run) {
    Long dx = Delta(edge.DrawX, pen.X);
    Long dy = Delta(edge.DrawY, pen.Y);
    Long width = Width(Magnitude(dx) | Magnitude(dy));
    if (width > MaxBits) {
        width = MaxBits;
        dx = std::clamp(dx, FarthestBack, Farthest);
        dy = std::clamp(dy, FarthestBack, Farthest);
    }
    const std::uint64_t head = 3u << 4 | static_cast<std::uint64_t>(width - 2);
    if (dx != 0 && dy != 0) {
        // A bit 1 for both directions.
        const std::uint64_t fields = Field(dx, width) << width | Field(dy, width);
        run.Put(7 + 2 * width, (head << 1 | 1) << (2 * width) | fields);
    } else {
        // A bit 0 for one, and a bit 1 for the upright one.
        const std::uint64_t upright = dy != 0 ? 1 : 0;
        run.Put(8 + width, (head << 2 | upright) << width | Field(dx | dy, width));
    }
    pen.X = edge.DrawX;
    pen.Y = edge.DrawY;
}

/// False, with nothing written, for a curve whose fields are wider than a record can tell.
inline bool Save(const clsSWFTShapeCurveEdge& edge, ShapePen& pen, mdlSWFTag::BitRun& run) {
    const Long cx = Delta(edge.ControlX, pen.X);
    const Long cy = Delta(edge.ControlY, pen.Y);
    const Long ax = Delta(edge.AnchorX, edge.ControlX);
    const Long ay = Delta(edge.AnchorY, edge.ControlY);
    const Long width = Width(Magnitude(cx) | Magnitude(cy) | Magnitude(ax) | Magnitude(ay));
    const std::uint64_t head = 2u << 4 | static_cast<std::uint64_t>(width - 2);
    const std::uint64_t control = Field(cx, width) << width | Field(cy, width);
    const std::uint64_t anchor = Field(ax, width) << width | Field(ay, width);
    constexpr Long WidestAtOnce = 12;
    if (width <= WidestAtOnce) {
        run.Put(6 + 4 * width, (head << (2 * width) | control) << (2 * width) | anchor);
    } else if (width <= MaxBits) {
        run.Put(6 + 2 * width, head << (2 * width) | control);
        run.Put(2 * width, anchor);
    } else {
        return false;
    }
    pen.X = edge.AnchorX;
    pen.Y = edge.AnchorY;
    return true;
}

}  // namespace shape_edge

}  // namespace tamber

#pragma once

#include <memory>
#include <span>
#include <variant>
#include <vector>

#include "swf/tags/clsSWFTLineStyle.h"

namespace tamber {

using FillStyleList = std::vector<clsSWFTFillStyle>;
using LineStyleList = std::vector<clsSWFTLineStyle>;

/// Bits that an index into a style list of this length takes: 1 for an empty list too.
Long StyleIndexBits(std::size_t count);

/// Writes a style list: count, then each entry, paired with the same entry of `ends` in a morph.
void SaveFillStyles(const FillStyleList& styles, const FillStyleList* ends);
void SaveLineStyles(const LineStyleList& styles, const LineStyleList* ends, Long version);

/// Where the pen stands and how wide style indices are while the records of one shape are written.
struct ShapePen {
    /// `Version` of the end shape of a morph, whose style changes carry moves only.
    static constexpr Long MorphEnd = static_cast<Long>(0x80000001);

    Long X = 0;
    Long Y = 0;
    Long FillBits = 1;
    Long LineBits = 1;
    Long Version = 3;
};

/// Change of styles and of the pen's place; coordinates are absolute twips.
class clsSWFTShapeStyleChange {
public:
    Long FillStyle0 = 0;
    Long FillStyle1 = 0;
    Long LineStyle = 0;
    bool blFillStyle0 = false;
    bool blFillStyle1 = false;
    bool blLineStyle = false;
    bool blMove = false;
    Long MoveX = 0;
    Long MoveY = 0;
    FillStyleList colFillStyles;
    LineStyleList colLineStyles;

    bool hasNewStyles() const { return !colFillStyles.empty() || !colLineStyles.empty(); }
    void Save(ShapePen& pen) const;

private:
    void SaveNewStyles(ShapePen& pen) const;
    void SaveMove(ShapePen& pen) const;
};

/// Straight edge to an absolute point.
class clsSWFTShapeStraightEdge {
public:
    Long DrawX = 0;
    Long DrawY = 0;
};

/// Quadratic edge by an absolute control point to an absolute anchor.
class clsSWFTShapeCurveEdge {
public:
    Long ControlX = 0;
    Long ControlY = 0;
    Long AnchorX = 0;
    Long AnchorY = 0;
};

using clsSWFTShapeRecord = std::variant<std::shared_ptr<clsSWFTShapeStyleChange>,
                                        clsSWFTShapeStraightEdge, clsSWFTShapeCurveEdge>;

/// Writes records that are all edges.
void SaveEdges(std::span<const clsSWFTShapeRecord> edges, ShapePen& pen);

/// 0 for a style change, 1 for a straight edge, 2 for a curve.
inline Long RecordType(const clsSWFTShapeRecord& record) {
    return static_cast<Long>(record.index());
}

}  // namespace tamber

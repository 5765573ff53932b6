#pragma once

#include <memory>

#include "document/cells/clsCSV.h"
#include "document/elements/clsEdgingTable.h"
#include "document/elements/clsTweenPointData.h"
#include "effects/filters/clsFilterData.h"
#include "platform/Collection.h"
#include "platform/types.h"

namespace tamber {

/// The placement of a visual element at its key frame. Positions are pixels, held to one decimal;
/// scale, angle and skew are held as whole ten-thousandths.
class clsLayerObjElement {
public:
    bool chkFixedRatio = true;
    /// Percent, -100 to 100.
    Long Bright = 0;
    /// Opacity in percent, 0 to 100.
    Long Toumei = 100;
    /// Speed change of a tween, -255 gradually faster to 255 gradually slower.
    Long Edging = 0;
    Long eBlend = 0;
    std::shared_ptr<clsFilterData> inFilter = std::make_shared<clsFilterData>();
    /// The curves apply in place of `Edging`.
    bool blCustomEdging = false;
    /// 0: a curve for the position and one for the rest; 1: `EdgingTblXY` for all; 2:
    /// `EdgingTblPrm` for all.
    Long EdgingAllMode = 1;
    clsEdgingTable EdgingTblXY;
    clsEdgingTable EdgingTblPrm;
    /// Motion path between this key frame and the next.
    Collection<clsTweenPointData> colTweenPoint;

    clsLayerObjElement() = default;
    clsLayerObjElement(const clsLayerObjElement&) = delete;
    clsLayerObjElement& operator=(const clsLayerObjElement&) = delete;

    /// Where the symbol's control point lies on the stage.
    Single X() const { return x_; }
    void X(Single value);
    Single Y() const { return y_; }
    void Y(Single value);
    /// The control point, from the symbol's left and top.
    Single OffsetX() const { return offsetX_; }
    void OffsetX(Single value);
    Single OffsetY() const { return offsetY_; }
    void OffsetY(Single value);
    /// 1 is actual size; -16384 to 16383.99.
    Single ScaleX() const;
    void ScaleX(Single value);
    Single ScaleY() const;
    void ScaleY(Single value);
    /// Degrees, -32768 to 32767.99.
    Single Angle() const;
    void Angle(Single value);
    /// Degrees, -89 to 89.
    Single SkewX() const;
    void SkewX(Single value);
    Single SkewY() const;
    void SkewY(Single value);

    /// The curve in use for the position, or with `second` for the other values.
    const clsEdgingTable& EdgingTbl(bool second) const;
    clsEdgingTable& EdgingTbl(bool second);

    Long tpCount() const { return colTweenPoint.Count(); }
    const std::shared_ptr<clsTweenPointData>& TweenPoint(Long index) const;
    /// Appends with `before` 0, else inserts before that index.
    void Addtp(std::shared_ptr<clsTweenPointData> point, Long before = 0);
    void Removetp(Long index);
    void Cleartp();

    /// True when all placement values agree, filter and curves included; motion paths don't count.
    bool Compare(const clsLayerObjElement& other) const;
    /// Copies all values; the motion path only with `withPoints`.
    void CopyTo(clsLayerObjElement& target, bool withPoints) const;
    void TPCopyTo(clsLayerObjElement& target) const;

    void Load(clsCSV& csv);
    void Save(clsCSV& csv) const;

private:
    Single x_ = 0;
    Single y_ = 0;
    Single offsetX_ = 0;
    Single offsetY_ = 0;
    Long scaleX_ = 10000;
    Long scaleY_ = 10000;
    Long angle_ = 0;
    Long skewX_ = 0;
    Long skewY_ = 0;
};

}  // namespace tamber

#include "document/elements/clsLayerObjElement.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "document/cells/ProjectFileVersion.h"
#include "platform/rounding.h"
#include "platform/text.h"

namespace tamber {

namespace {

constexpr Long VersionWithSkew = 0x60200;

struct Bounds {
    Long Lowest;
    Long Highest;
};
/// In ten-thousandths; the upper ones are what a Single makes of 16383.99 and 32767.99.
constexpr Bounds scaleBounds{-163840000, 163839904};
constexpr Bounds angleBounds{-327680000, 327679904};
constexpr Bounds skewBounds{-890000, 890000};

Long Limited(Long value, Bounds bounds) {
    return std::clamp(value, bounds.Lowest, bounds.Highest);
}

Long TenThousandths(Single value, Bounds bounds) {
    const Single scaled = value * 10000.0F;
    if (scaled >= static_cast<Single>(bounds.Highest)) return bounds.Highest;
    if (!(scaled > static_cast<Single>(bounds.Lowest))) return bounds.Lowest;
    return RoundToLong(scaled);
}

Single FromTenThousandths(Long value) {
    return static_cast<Single>(value / 10000.0);
}

/// One decimal as the display format "#0.0" rounds: by the seven digits a Single shows, halves away
/// from zero.
Single OneDecimal(Single value) {
    if (value == std::trunc(value) || !std::isfinite(value)) return value;
    char digits[32];
    std::snprintf(digits, sizeof digits, "%.7g", static_cast<double>(value));
    // The sum drops the sign of a zero.
    return static_cast<Single>(std::round(std::strtod(digits, nullptr) * 10) / 10 + 0.0);
}

StringView ModeText(Long mode) {
    return mode == 0 ? u"NON" : mode == 2 ? u"PRM" : u"XY";
}

}  // namespace

void clsLayerObjElement::X(Single value) {
    x_ = OneDecimal(value);
}
void clsLayerObjElement::Y(Single value) {
    y_ = OneDecimal(value);
}
void clsLayerObjElement::OffsetX(Single value) {
    offsetX_ = OneDecimal(value);
}
void clsLayerObjElement::OffsetY(Single value) {
    offsetY_ = OneDecimal(value);
}

Single clsLayerObjElement::ScaleX() const {
    return FromTenThousandths(scaleX_);
}
void clsLayerObjElement::ScaleX(Single value) {
    scaleX_ = TenThousandths(value, scaleBounds);
}
Single clsLayerObjElement::ScaleY() const {
    return FromTenThousandths(scaleY_);
}
void clsLayerObjElement::ScaleY(Single value) {
    scaleY_ = TenThousandths(value, scaleBounds);
}
Single clsLayerObjElement::Angle() const {
    return FromTenThousandths(angle_);
}
void clsLayerObjElement::Angle(Single value) {
    angle_ = TenThousandths(value, angleBounds);
}
Single clsLayerObjElement::SkewX() const {
    return FromTenThousandths(skewX_);
}
void clsLayerObjElement::SkewX(Single value) {
    skewX_ = TenThousandths(value, skewBounds);
}
Single clsLayerObjElement::SkewY() const {
    return FromTenThousandths(skewY_);
}
void clsLayerObjElement::SkewY(Single value) {
    skewY_ = TenThousandths(value, skewBounds);
}

const clsEdgingTable& clsLayerObjElement::EdgingTbl(bool second) const {
    if (EdgingAllMode == 1) return EdgingTblXY;
    if (EdgingAllMode == 2) return EdgingTblPrm;
    return second ? EdgingTblPrm : EdgingTblXY;
}

clsEdgingTable& clsLayerObjElement::EdgingTbl(bool second) {
    return const_cast<clsEdgingTable&>(std::as_const(*this).EdgingTbl(second));
}

const std::shared_ptr<clsTweenPointData>& clsLayerObjElement::TweenPoint(Long index) const {
    return colTweenPoint(index);
}

void clsLayerObjElement::Addtp(std::shared_ptr<clsTweenPointData> point, Long before) {
    if (before == 0)
        colTweenPoint.Add(std::move(point));
    else
        colTweenPoint.Insert(std::move(point), before);
}

void clsLayerObjElement::Removetp(Long index) {
    colTweenPoint.Remove(index);
}

void clsLayerObjElement::Cleartp() {
    colTweenPoint.Clear();
}

bool clsLayerObjElement::Compare(const clsLayerObjElement& other) const {
    return x_ == other.x_ && y_ == other.y_ && offsetX_ == other.offsetX_ &&
           offsetY_ == other.offsetY_ && chkFixedRatio == other.chkFixedRatio &&
           scaleX_ == other.scaleX_ && scaleY_ == other.scaleY_ && Bright == other.Bright &&
           Toumei == other.Toumei && angle_ == other.angle_ && skewX_ == other.skewX_ &&
           skewY_ == other.skewY_ && Edging == other.Edging && eBlend == other.eBlend &&
           blCustomEdging == other.blCustomEdging && EdgingAllMode == other.EdgingAllMode &&
           EdgingTblXY == other.EdgingTblXY && EdgingTblPrm == other.EdgingTblPrm &&
           !inFilter->CkUpDate(*other.inFilter);
}

void clsLayerObjElement::CopyTo(clsLayerObjElement& target, bool withPoints) const {
    if (&target == this) return;
    target.x_ = x_;
    target.y_ = y_;
    target.offsetX_ = offsetX_;
    target.offsetY_ = offsetY_;
    target.chkFixedRatio = chkFixedRatio;
    target.scaleX_ = scaleX_;
    target.scaleY_ = scaleY_;
    target.Bright = Bright;
    target.Toumei = Toumei;
    target.angle_ = angle_;
    target.skewX_ = skewX_;
    target.skewY_ = skewY_;
    target.Edging = Edging;
    target.eBlend = eBlend;
    target.inFilter = inFilter->Copy();
    target.blCustomEdging = blCustomEdging;
    target.EdgingAllMode = EdgingAllMode;
    target.EdgingTblXY = EdgingTblXY;
    target.EdgingTblPrm = EdgingTblPrm;
    if (withPoints) TPCopyTo(target);
}

void clsLayerObjElement::TPCopyTo(clsLayerObjElement& target) const {
    if (&target == this) return;
    target.colTweenPoint.Clear();
    for (const auto& point : colTweenPoint)
        target.colTweenPoint.Add(std::make_shared<clsTweenPointData>(*point));
}

void clsLayerObjElement::Load(clsCSV& csv) {
    X(csv.TakeSingle());
    Y(csv.TakeSingle());
    OffsetX(csv.TakeSingle());
    OffsetY(csv.TakeSingle());
    chkFixedRatio = csv.TakeBoolean();
    scaleX_ = Limited(csv.TakeLong(), scaleBounds);
    scaleY_ = Limited(csv.TakeLong(), scaleBounds);
    Bright = Limited(csv.TakeLong(), {-100, 100});
    Toumei = Limited(csv.TakeLong(), {0, 100});
    angle_ = Limited(csv.TakeLong(), angleBounds);
    if (ProjectFileVersion >= VersionWithSkew) {
        skewX_ = Limited(csv.TakeLong(), skewBounds);
        skewY_ = Limited(csv.TakeLong(), skewBounds);
    }
    Edging = Limited(csv.TakeLong(), {-255, 255});
    // A number here is the blend mode of a file without curves.
    if (!IsNumeric(csv.Value())) {
        const String mode = csv.TakeText();
        EdgingAllMode = mode == ModeText(0) ? 0 : mode == ModeText(2) ? 2 : 1;
        blCustomEdging = csv.TakeBoolean();
        EdgingTblXY.Load(csv);
        if (mode != u"ALL") EdgingTblPrm.Load(csv);
        csv.CrLf();
    }
    eBlend = csv.TakeLong();
    inFilter->Load(csv);
    const Long points = csv.TakeLong();
    Cleartp();
    if (points > 0) csv.CrLf();
    for (Long i = 0; i < points; ++i) {
        auto point = std::make_shared<clsTweenPointData>();
        point->PointType = csv.TakeText() == u"On" ? 0 : 1;
        point->X = csv.TakeSingle();
        point->Y = csv.TakeSingle();
        colTweenPoint.Add(std::move(point));
    }
}

void clsLayerObjElement::Save(clsCSV& csv) const {
    csv.Put(x_);
    csv.Put(y_);
    csv.Put(offsetX_);
    csv.Put(offsetY_);
    csv.Put(chkFixedRatio);
    for (const Long value : {scaleX_, scaleY_, Bright, Toumei, angle_, skewX_, skewY_, Edging})
        csv.Put(value);
    csv.Put(ModeText(EdgingAllMode));
    csv.Put(blCustomEdging);
    EdgingTblXY.Save(csv);
    EdgingTblPrm.Save(csv);
    csv.CrLf();
    csv.Put(eBlend);
    inFilter->Save(csv);
    csv.Put(tpCount());
    if (tpCount() == 0) return;
    csv.CrLf();
    for (const auto& point : colTweenPoint) {
        csv.Put(point->PointType == 0 ? StringView(u"On") : StringView(u"Off"));
        csv.Put(point->X);
        csv.Put(point->Y);
    }
}

}  // namespace tamber

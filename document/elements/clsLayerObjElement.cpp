#include "document/elements/clsLayerObjElement.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace tamber {

Single OneDecimal(Single value) {
    if (value == std::trunc(value) || !std::isfinite(value)) return value;
    char digits[32];
    std::snprintf(digits, sizeof digits, "%.7g", static_cast<double>(value));
    // The sum drops the sign of a zero.
    return static_cast<Single>(std::round(std::strtod(digits, nullptr) * 10) / 10 + 0.0);
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
    return SameFields(*this, other);
}

void clsLayerObjElement::CopyTo(clsLayerObjElement& target, bool withPoints) const {
    CopyFields(*this, target);
    if (withPoints) TPCopyTo(target);
}

void clsLayerObjElement::TPCopyTo(clsLayerObjElement& target) const {
    if (&target == this) return;
    target.colTweenPoint.Clear();
    for (const auto& point : colTweenPoint)
        target.colTweenPoint.Add(std::make_shared<clsTweenPointData>(*point));
}

void clsLayerObjElement::Load(clsCSV& csv) {
    LoadFields(*this, csv);
}

void clsLayerObjElement::Save(clsCSV& csv) const {
    SaveFields(*this, csv);
}

}  // namespace tamber

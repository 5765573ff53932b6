#include "document/elements/clsObjVector.h"

namespace tamber {

bool clsObjVector::blFreeTransEx() const {
    return blFreeTrans && (FreeTransPoints[0] != 0 || FreeTransPoints[1] != 0 ||
                           FreeTransPoints[4] != 0 || FreeTransPoints[5] != 0);
}

void clsObjVector::Load(clsCSV& csv) {
    clsPlacedElement::Load(csv);
    if (csv.Value().empty()) return;
    blFreeTrans = csv.TakeBoolean();
    for (Long& value : FreeTransPoints) value = csv.TakeLong();
    if (!csv.Value().empty()) blDivide = csv.TakeBoolean();
}

void clsObjVector::Save(clsCSV& csv) const {
    clsPlacedElement::Save(csv);
    csv.Put(blFreeTrans);
    for (const Long value : FreeTransPoints) csv.Put(value);
    csv.Put(blDivide);
}

void clsObjVector::CopyTo(clsElement& target, bool withPoints) const {
    clsPlacedElement::CopyTo(target, withPoints);
    if (auto* other = dynamic_cast<clsObjVector*>(&target)) {
        other->blFreeTrans = blFreeTrans;
        other->FreeTransPoints = FreeTransPoints;
        other->blDivide = blDivide;
    }
}

bool clsObjVector::Compare(const clsElement& other) const {
    if (!clsPlacedElement::Compare(other)) return false;
    const auto& vector = dynamic_cast<const clsObjVector&>(other);
    return blFreeTrans == vector.blFreeTrans && FreeTransPoints == vector.FreeTransPoints &&
           blDivide == vector.blDivide;
}

}  // namespace tamber

#include "document/elements/clsObjText.h"

namespace tamber {

clsObjText::clsObjText() {
    inEfElement.ApplyOneEnable = true;
    inEfElement.blApplyOne(true);
}

void clsObjText::Load(clsCSV& csv) {
    clsPlacedElement::Load(csv);
    if (!csv.Value().empty()) inEfElement.Load(csv);
}

void clsObjText::Save(clsCSV& csv) const {
    clsPlacedElement::Save(csv);
    inEfElement.Save(csv);
}

void clsObjText::CopyTo(clsElement& target, bool withPoints) const {
    clsPlacedElement::CopyTo(target, withPoints);
    if (auto* other = dynamic_cast<clsObjText*>(&target)) inEfElement.CopyTo(other->inEfElement);
}

bool clsObjText::Compare(const clsElement& other) const {
    return clsPlacedElement::Compare(other) &&
           inEfElement.Compare(dynamic_cast<const clsObjText&>(other).inEfElement);
}

}  // namespace tamber

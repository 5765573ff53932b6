#include "document/elements/clsObjSprite.h"

namespace tamber {

void clsObjSprite::Load(clsCSV& csv) {
    clsPlacedElement::Load(csv);
    if (!csv.Value().empty()) inEfElement.Load(csv);
}

void clsObjSprite::Save(clsCSV& csv) const {
    clsPlacedElement::Save(csv);
    inEfElement.Save(csv);
}

void clsObjSprite::CopyTo(clsElement& target, bool withPoints) const {
    clsPlacedElement::CopyTo(target, withPoints);
    if (auto* other = dynamic_cast<clsObjSprite*>(&target)) inEfElement.CopyTo(other->inEfElement);
}

bool clsObjSprite::Compare(const clsElement& other) const {
    return clsPlacedElement::Compare(other) &&
           inEfElement.Compare(dynamic_cast<const clsObjSprite&>(other).inEfElement);
}

}  // namespace tamber

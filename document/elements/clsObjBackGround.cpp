#include "document/elements/clsObjBackGround.h"

namespace tamber {

void clsObjBackGround::BackColor(Long color) {
    BackColorRed = static_cast<Byte>(color & 255);
    BackColorGreen = static_cast<Byte>(color >> 8 & 255);
    BackColorBlue = static_cast<Byte>(color >> 16 & 255);
}

void clsObjBackGround::Load(clsCSV& csv) {
    BackColorBlue = csv.TakeByte();
    BackColorGreen = csv.TakeByte();
    BackColorRed = csv.TakeByte();
}

void clsObjBackGround::Save(clsCSV& csv) const {
    csv.Put(Long{BackColorBlue});
    csv.Put(Long{BackColorGreen});
    csv.Put(Long{BackColorRed});
}

void clsObjBackGround::CopyTo(clsElement& target, bool) const {
    if (auto* other = dynamic_cast<clsObjBackGround*>(&target)) *other = *this;
}

bool clsObjBackGround::Compare(const clsElement& other) const {
    const auto* same = dynamic_cast<const clsObjBackGround*>(&other);
    return same != nullptr && BackColorBlue == same->BackColorBlue &&
           BackColorGreen == same->BackColorGreen && BackColorRed == same->BackColorRed;
}

}  // namespace tamber

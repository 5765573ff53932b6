#include "document/elements/clsObjFrameLabel.h"

namespace tamber {

void clsObjFrameLabel::Load(clsCSV& csv) {
    LabelName = csv.TakeText();
    if (!csv.Value().empty()) blAnchor = csv.TakeBoolean();
}

void clsObjFrameLabel::Save(clsCSV& csv) const {
    csv.Put(LabelName);
    csv.Put(blAnchor);
}

void clsObjFrameLabel::CopyTo(clsElement& target, bool) const {
    if (auto* other = dynamic_cast<clsObjFrameLabel*>(&target)) *other = *this;
}

bool clsObjFrameLabel::Compare(const clsElement& other) const {
    const auto* same = dynamic_cast<const clsObjFrameLabel*>(&other);
    return same != nullptr && LabelName == same->LabelName && blAnchor == same->blAnchor;
}

}  // namespace tamber

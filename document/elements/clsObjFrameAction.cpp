#include "document/elements/clsObjFrameAction.h"

namespace tamber {

void clsObjFrameAction::Load(clsCSV& csv) {
    Comment = csv.TakeText();
    inScript.Load(csv);
}

void clsObjFrameAction::Save(clsCSV& csv) const {
    csv.Put(Comment);
    inScript.Save(csv);
}

void clsObjFrameAction::CopyTo(clsElement& target, bool) const {
    if (auto* other = dynamic_cast<clsObjFrameAction*>(&target)) *other = *this;
}

bool clsObjFrameAction::Compare(const clsElement& other) const {
    const auto* same = dynamic_cast<const clsObjFrameAction*>(&other);
    return same != nullptr && Comment == same->Comment && inScript.Compare(same->inScript);
}

}  // namespace tamber

#include "document/elements/clsObjText.h"

namespace tamber {

clsObjText::clsObjText() {
    inEfElement.ApplyOneEnable = true;
    inEfElement.blApplyOne(true);
}

}  // namespace tamber

#include "document/elements/clsObjVector.h"

namespace tamber {

bool clsObjVector::blFreeTransEx() const {
    return blFreeTrans && (FreeTransPoints[0] != 0 || FreeTransPoints[1] != 0 ||
                           FreeTransPoints[4] != 0 || FreeTransPoints[5] != 0);
}

}  // namespace tamber

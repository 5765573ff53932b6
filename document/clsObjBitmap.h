#pragma once

#include "document/SymbolKinds.h"
#include "document/clsPlacedElement.h"

namespace tamber {

/// A placed picture.
class clsObjBitmap : public clsPlacedElement {
public:
    Long eType() const override { return KindBitmap; }
};

}  // namespace tamber

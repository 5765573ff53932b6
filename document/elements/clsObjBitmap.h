#pragma once

#include "document/elements/SymbolKinds.h"
#include "document/elements/clsPlacedElement.h"

namespace tamber {

/// A placed picture.
class clsObjBitmap : public clsPlacedElement {
public:
    Long eType() const override { return KindBitmap; }
};

}  // namespace tamber

#pragma once

#include "document/SymbolKinds.h"
#include "document/clsPlacedElement.h"

namespace tamber {

/// A placed button.
class clsObjButton : public clsPlacedElement {
public:
    Long eType() const override { return KindButton; }
};

}  // namespace tamber

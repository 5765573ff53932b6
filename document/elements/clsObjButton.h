#pragma once

#include "document/elements/SymbolKinds.h"
#include "document/elements/clsPlacedElement.h"

namespace tamber {

/// A placed button.
class clsObjButton : public clsPlacedElement {
public:
    Long eType() const override { return KindButton; }
};

}  // namespace tamber

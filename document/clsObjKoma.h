#pragma once

#include "document/SymbolKinds.h"
#include "document/clsPlacedElement.h"

namespace tamber {

/// A placed picture list.
class clsObjKoma : public clsPlacedElement {
public:
    Long eType() const override { return KindKoma; }
};

}  // namespace tamber

#pragma once

#include "document/elements/SymbolKinds.h"
#include "document/elements/clsPlacedElement.h"

namespace tamber {

/// A placed picture list.
class clsObjKoma : public clsPlacedElement {
public:
    Long eType() const override { return KindKoma; }
};

}  // namespace tamber

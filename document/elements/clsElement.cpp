#include "document/elements/clsElement.h"

#include "document/elements/SymbolKinds.h"

namespace tamber {

std::shared_ptr<clsElement> clsElement::Copy() const {
    auto copy = MakeElement(eType());
    CopyTo(*copy, true);
    return copy;
}

std::shared_ptr<clsElement> MakeElement(Long kind) {
    const auto make = KindOf(kind).NewElement;
    return make != nullptr ? make() : nullptr;
}

}  // namespace tamber

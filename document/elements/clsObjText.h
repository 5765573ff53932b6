#pragma once

#include "document/elements/SymbolKinds.h"
#include "document/elements/clsPlacedElement.h"
#include "effects/clsEffectElement.h"

namespace tamber {

/// A placed text.
class clsObjText : public clsPlacedElement {
public:
    clsEffectElement inEfElement;

    clsObjText();
    Long eType() const override { return KindText; }
    void Load(clsCSV& csv) override;
    void Save(clsCSV& csv) const override;
    void CopyTo(clsElement& target, bool withPoints) const override;
    bool Compare(const clsElement& other) const override;
};

}  // namespace tamber

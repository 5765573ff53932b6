#pragma once

#include <array>

#include "document/elements/SymbolKinds.h"
#include "document/elements/clsPlacedElement.h"

namespace tamber {

/// A placed vector drawing, which may be deformed at its key frame.
class clsObjVector : public clsPlacedElement {
public:
    bool blFreeTrans = false;
    std::array<Long, 8> FreeTransPoints{};
    bool blDivide = false;

    Long eType() const override { return KindVector; }
    /// The deformation is on and moves a corner.
    bool blFreeTransEx() const;
    void Load(clsCSV& csv) override;
    void Save(clsCSV& csv) const override;
    void CopyTo(clsElement& target, bool withPoints) const override;
    bool Compare(const clsElement& other) const override;
};

}  // namespace tamber

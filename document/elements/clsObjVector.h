#pragma once

#include <array>

#include "document/elements/SymbolKinds.h"
#include "document/elements/clsPlacedElement.h"

namespace tamber {

/// A placed vector drawing, which may be deformed at its key frame.
class clsObjVector : public PlacedFieldElement<clsObjVector> {
public:
    bool blFreeTrans = false;
    std::array<Long, 8> FreeTransPoints{};
    bool blDivide = false;

    Long eType() const override { return KindVector; }
    /// The deformation is on and moves a corner.
    bool blFreeTransEx() const;

    static constexpr auto Fields() {
        using T = clsObjVector;
        return std::tuple{
            Group(IfFilled(), Field(u"blFreeTrans", &T::blFreeTrans),
                  Array(u"FreeTransPoint", &T::FreeTransPoints),
                  Group(IfFilled(), Field(u"blDivide", &T::blDivide))),
        };
    }
};

}  // namespace tamber

#pragma once

#include "document/elements/SymbolKinds.h"
#include "document/elements/clsPlacedElement.h"
#include "effects/clsEffectElement.h"

namespace tamber {

/// A placed text.
class clsObjText : public PlacedFieldElement<clsObjText> {
public:
    clsEffectElement inEfElement;

    clsObjText();
    Long eType() const override { return KindText; }

    static constexpr auto Fields() {
        using T = clsObjText;
        return std::tuple{
            Group(IfFilled(), Record(u"effect", u"", &T::inEfElement)),
        };
    }
};

}  // namespace tamber

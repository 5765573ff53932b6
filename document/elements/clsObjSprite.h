#pragma once

#include "document/elements/SymbolKinds.h"
#include "document/elements/clsPlacedElement.h"
#include "effects/clsEffectElement.h"

namespace tamber {

/// A placed sprite.
class clsObjSprite : public PlacedFieldElement<clsObjSprite> {
public:
    clsEffectElement inEfElement;

    Long eType() const override { return KindSprite; }

    static constexpr auto Fields() {
        using T = clsObjSprite;
        return std::tuple{
            Group(IfFilled(), Record(u"effect", u"", &T::inEfElement)),
        };
    }
};

}  // namespace tamber

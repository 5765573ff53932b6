#pragma once

#include "document/elements/FieldElement.h"
#include "document/elements/SymbolKinds.h"

namespace tamber {

/// The stage's background colour.
class clsObjBackGround : public FieldElement<clsObjBackGround> {
public:
    Byte BackColorBlue = 255;
    Byte BackColorGreen = 255;
    Byte BackColorRed = 255;

    Long eType() const override { return KindBackGround; }
    /// Red in the low byte.
    Long BackColor() const { return ColorLong(BackColorRed, BackColorGreen, BackColorBlue); }
    void BackColor(Long color);
    /// Blue in the low byte.
    Long BackColorRev() const { return ColorLong(BackColorBlue, BackColorGreen, BackColorRed); }

    static constexpr auto Fields() {
        using T = clsObjBackGround;
        return std::tuple{
            Field(u"BackColorBlue", &T::BackColorBlue),
            Field(u"BackColorGreen", &T::BackColorGreen),
            Field(u"BackColorRed", &T::BackColorRed),
        };
    }
};

}  // namespace tamber

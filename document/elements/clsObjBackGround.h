#pragma once

#include "document/elements/SymbolKinds.h"
#include "document/elements/clsElement.h"

namespace tamber {

/// The stage's background colour.
class clsObjBackGround : public clsElement {
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
    void Load(clsCSV& csv) override;
    void Save(clsCSV& csv) const override;
    void CopyTo(clsElement& target, bool withPoints) const override;
    bool Compare(const clsElement& other) const override;
};

}  // namespace tamber

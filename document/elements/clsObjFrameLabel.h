#pragma once

#include "document/elements/SymbolKinds.h"
#include "document/elements/clsElement.h"

namespace tamber {

/// A frame's label.
class clsObjFrameLabel : public clsElement {
public:
    String LabelName;
    bool blAnchor = false;

    Long eType() const override { return KindFrameLabel; }
    void Load(clsCSV& csv) override;
    void Save(clsCSV& csv) const override;
    void CopyTo(clsElement& target, bool withPoints) const override;
    bool Compare(const clsElement& other) const override;
};

}  // namespace tamber

#pragma once

#include "document/elements/SymbolKinds.h"
#include "document/elements/clsElement.h"

namespace tamber {

/// A folder row's state.
class clsLayerFolder : public clsElement {
public:
    String FolderName;
    /// For display only.
    Long FolderDepth = 0;
    /// Rows below the folder, nested ones included.
    Long LayerCount = 0;
    bool Expand = true;
    String Comment;

    Long eType() const override { return KindLayerFolder; }
    void Load(clsCSV& csv) override;
    void Save(clsCSV& csv) const override;
    void CopyTo(clsElement& target, bool withPoints) const override;
    bool Compare(const clsElement& other) const override;
};

}  // namespace tamber

#pragma once

#include "document/clsPropertyData.h"

namespace tamber {

/// A folder of the library.
class clsPropertySymbolFolder : public clsPropertyData {
public:
    String FolderName;
    /// For display only.
    Long FolderDepth = 0;
    /// Rows below the folder, nested ones included.
    Long LayerCount = 0;
    bool Expand = true;

    Long eType() const override { return KindSymbolFolder; }
    void Load(clsCSV& csv) override;
    void Save(clsCSV& csv) const override;
    void CopyTo(clsPropertyData& target) const override { CopyRecord(*this, target); }
};

}  // namespace tamber

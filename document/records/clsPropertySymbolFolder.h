#pragma once

#include "document/symbols/clsPropertyData.h"

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
    Long eTypeEx() const override { return Expand ? KindSymbolFolderExpanded : KindSymbolFolder; }
    String TypeTextEx() const override { return u"ﾌｫﾙﾀﾞ"; }
    std::optional<String> Name() const override { return FolderName; }
    Long RowsBelow() const override { return LayerCount; }
    void AddRows(Long count) override { LayerCount += count; }
    void Load(clsCSV& csv) override;
    void Save(clsCSV& csv) const override;
    void CopyTo(clsPropertyData& target) const override { CopyRecord(*this, target); }
};

}  // namespace tamber

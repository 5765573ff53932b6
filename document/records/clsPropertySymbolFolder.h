#pragma once

#include "document/records/FieldRecord.h"

namespace tamber {

/// A folder of the library.
class clsPropertySymbolFolder : public FieldRecord<clsPropertySymbolFolder> {
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

    static constexpr auto Fields() {
        using T = clsPropertySymbolFolder;
        return std::tuple{
            Field(u"FolderName", &T::FolderName),
            Field(u"LayerCount", &T::LayerCount, Follows),
            Field(u"Expand", &T::Expand),
        };
    }
};

}  // namespace tamber

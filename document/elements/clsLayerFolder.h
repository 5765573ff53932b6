#pragma once

#include "document/elements/FieldElement.h"
#include "document/elements/SymbolKinds.h"

namespace tamber {

/// A folder row's state.
class clsLayerFolder : public FieldElement<clsLayerFolder> {
public:
    String FolderName;
    /// For display only.
    Long FolderDepth = 0;
    /// Rows below the folder, nested ones included.
    Long LayerCount = 0;
    bool Expand = true;
    String Comment;

    Long eType() const override { return KindLayerFolder; }

    static constexpr auto Fields() {
        using T = clsLayerFolder;
        return std::tuple{
            Field(u"FolderName", &T::FolderName),
            Field(u"FolderDepth", &T::FolderDepth, Follows),
            Field(u"LayerCount", &T::LayerCount, Follows),
            Field(u"Expand", &T::Expand),
            Field(u"Comment", &T::Comment),
        };
    }
};

}  // namespace tamber

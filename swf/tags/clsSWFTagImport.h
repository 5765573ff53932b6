#pragma once

#include <vector>

#include "swf/clsSWFTag.h"
#include "swf/tags/TagCodes.h"
#include "swf/tags/clsSWFTagExport.h"

namespace tamber {

/// ImportAssets, or from version 8 on ImportAssets2: the other movie's address, in ImportAssets2
/// the bytes 1 and 0, count, then identifier and name each. Nothing below version 5.
class clsSWFTagImport : public clsSWFTag {
public:
    const String& URL() const { return url_; }
    /// Separators of both kinds become two backslashes.
    void URL(StringView url);
    void AddSymbol(Long id, StringView name) { symbols_.push_back({id, String(name)}); }

    /// -1 below version 5.
    Long TagNum() const override;
    void Save() override;

private:
    String url_;
    std::vector<SwfLinkage> symbols_;
};

}  // namespace tamber

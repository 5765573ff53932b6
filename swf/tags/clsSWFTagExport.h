#pragma once

#include <vector>

#include "swf/clsSWFTag.h"
#include "swf/mdlSWFTag.h"
#include "swf/tags/TagCodes.h"

namespace tamber {

/// A character identifier and its linkage name.
struct SwfLinkage {
    Long ID = 0;
    String Name;
};

/// ExportAssets: count, then identifier and name each. Below version 5 one naming tag an entry.
class clsSWFTagExport : public clsSWFTag {
public:
    void AddSymbol(Long id, StringView name) { symbols_.push_back({id, String(name)}); }

    Long TagNum() const override {
        return mdlSWFTag::swfVersion() < 5 ? TagCode::NameCharacter : TagCode::ExportAssets;
    }
    void Save() override;

private:
    std::vector<SwfLinkage> symbols_;
};

}  // namespace tamber

#pragma once

#include "swf/clsSWFTag.h"
#include "swf/mdlSWFTag.h"
#include "swf/tags/TagCodes.h"

namespace tamber {

/// FileAttributes: four bytes of flags, first in every movie of version 8 and up.
class clsSWFTagFileAttributes : public clsSWFTag {
public:
    bool blHasMetadata = false;
    bool blUseNetwork = false;

    Long TagNum() const override { return TagCode::FileAttributes; }
    void Save() override {
        mdlSWFTag::SetTagHeader(TagNum(), 4, false);
        mdlSWFTag::SetBytes(4, (blHasMetadata ? 16 : 0) | (blUseNetwork ? 1 : 0));
    }
};

}  // namespace tamber

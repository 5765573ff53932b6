#pragma once

#include "swf/clsSWFTag.h"
#include "swf/mdlSWFTag.h"
#include "swf/tags/TagCodes.h"

namespace tamber {

/// RemoveObject2 (depth), or RemoveObject (identifier, depth): one tag for each of RemoveCnt
/// neighbouring depths.
class clsSWFTagRemoveObject : public clsSWFTag {
public:
    Long Ver = 2;
    Long RemoveID = 0;
    Long depth = 0;
    Long RemoveCnt = 1;

    Long TagNum() const override {
        return Ver == 1 ? TagCode::RemoveObject : TagCode::RemoveObject2;
    }
    void Save() override {
        for (Long i = 0; i < RemoveCnt; ++i) {
            mdlSWFTag::SetTagHeader(TagNum(), Ver == 1 ? 4 : 2, false);
            if (Ver == 1) mdlSWFTag::SetBytes(2, RemoveID + i);
            mdlSWFTag::SetBytes(2, depth + i);
        }
    }
};

}  // namespace tamber

#pragma once

#include "swf/clsSWFTag.h"
#include "swf/mdlSWFTag.h"
#include "swf/tags/TagCodes.h"

namespace tamber {

/// DoAction (actions, a zero byte), or DoInitAction (sprite identifier first) when it belongs to a
/// sprite.
class clsSWFTagDoAction : public clsSWFTag {
public:
    Bytes bufAction;     ///< action records without the closing zero
    Long OrderNum = -1;  ///< place among the init actions of a frame; negative: as it comes
    Long SpriteID = -1;

    Long TagNum() const override {
        return SpriteID < 0 ? TagCode::DoAction : TagCode::DoInitAction;
    }
    void Save() override {
        const bool init = SpriteID >= 0;
        const auto length = static_cast<Long>(bufAction.size()) + (init ? 3 : 1);
        mdlSWFTag::SetTagHeader(TagNum(), length, false);
        if (init) mdlSWFTag::SetBytes(2, SpriteID);
        mdlSWFTag::SetByteArray(bufAction);
        mdlSWFTag::SetBytes(1, 0);
    }
};

}  // namespace tamber

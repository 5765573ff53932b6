#pragma once

#include "swf/clsSWFTag.h"
#include "swf/mdlSWFTag.h"
#include "swf/tags/TagCodes.h"

namespace tamber {

/// SetBackgroundColor: red, green, blue.
class clsSWFTagSetBackgroundColor : public clsSWFTag {
public:
    Long Color = 0xFFFFFF;  ///< red in the low byte

    Long TagNum() const override { return TagCode::SetBackgroundColor; }
    void Save() override {
        mdlSWFTag::SetTagHeader(TagNum(), 3, false);
        mdlSWFTag::SetBytes(3, Color);
    }
};

}  // namespace tamber

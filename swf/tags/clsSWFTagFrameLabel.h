#pragma once

#include "swf/clsSWFTag.h"
#include "swf/mdlSWFTag.h"
#include "swf/tags/TagCodes.h"

namespace tamber {

/// FrameLabel: the name with its zero, and a byte 1 behind it for a named anchor.
class clsSWFTagFrameLabel : public clsSWFTag {
public:
    String Label;
    bool blAnchor = false;

    Long TagNum() const override { return TagCode::FrameLabel; }
    void Save() override {
        const std::size_t body = mdlSWFTag::BeginTag(TagNum());
        mdlSWFTag::SetString(Label, true, true);
        if (blAnchor) mdlSWFTag::SetBytes(1, 1);
        mdlSWFTag::EndTag(body);
    }
};

}  // namespace tamber

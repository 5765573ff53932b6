#pragma once

#include <functional>

#include "swf/clsSWFTag.h"
#include "swf/mdlSWFTag.h"
#include "swf/tags/TagCodes.h"

namespace tamber {

/// DefineSprite: identifier, frame count, the tags of its timeline, End.
class clsSWFTagDefineSprite : public clsSWFTag {
public:
    Long ID = 0;
    Long FrameCount = 1;
    /// Writes the tags of the timeline.
    std::function<void()> SaveTimeline;

    Long TagNum() const override { return TagCode::DefineSprite; }
    void Save() override {
        const std::size_t body = mdlSWFTag::BeginTag(TagNum());
        mdlSWFTag::SetBytes(2, ID);
        mdlSWFTag::SetBytes(2, FrameCount);
        SaveTimeline();
        mdlSWFTag::SetTagHeader(TagCode::End, 0, false);
        mdlSWFTag::EndTag(body);
    }
};

}  // namespace tamber

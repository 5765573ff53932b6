#pragma once

#include "swf/clsSWFTag.h"
#include "swf/mdlSWFTag.h"
#include "swf/tags/TagCodes.h"

namespace tamber {

/// DefineVideoStream: identifier, frames, width and height in pixels, two bytes each; a byte with
/// the smoothing in its lowest bit; a byte with the codec.
class clsSWFTagDefineVideoStream : public clsSWFTag {
public:
    Long ID = 0;
    Long FrameCount = 0;
    Long Width = 0;
    Long height = 0;
    /// 0 for a video that a script attaches.
    Long CodecID = 0;
    bool blSmoothing = false;

    Long TagNum() const override { return TagCode::DefineVideoStream; }
    void Save() override {
        mdlSWFTag::SetTagHeader(TagNum(), BodySize, true);
        for (const Long field : {ID, FrameCount, Width, height}) mdlSWFTag::SetBytes(2, field);
        mdlSWFTag::SetBytes(1, blSmoothing ? 1 : 0);
        mdlSWFTag::SetBytes(1, CodecID);
    }

private:
    static constexpr Long BodySize = 10;
};

}  // namespace tamber

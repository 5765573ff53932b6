#pragma once

#include "swf/clsSWFTag.h"
#include "swf/mdlSWFTag.h"
#include "swf/tags/TagCodes.h"

namespace tamber {

/// CSMTextSettings: identifier of the text, kind of smoothing, grid fit, thickness and sharpness as
/// floats, a zero byte.
class clsSWFTagCSMTextSettings : public clsSWFTag {
public:
    Long TextID = 0;
    Long UseFlashType = 0;
    Long GridFit = 0;
    Single Thickness = 0;
    Single Sharpness = 0;

    Long TagNum() const override { return TagCode::CSMTextSettings; }
    void Save() override {
        constexpr Long Length = 12;
        mdlSWFTag::SetTagHeader(TagNum(), Length, false);
        mdlSWFTag::SetBytes(2, TextID);
        mdlSWFTag::SetBits(2, UseFlashType);
        mdlSWFTag::SetBits(3, GridFit);
        mdlSWFTag::SetFloat(Thickness);
        mdlSWFTag::SetFloat(Sharpness);
        mdlSWFTag::SetBytes(1, 0);
    }
};

}  // namespace tamber

#pragma once

#include "swf/clsSWFTag.h"
#include "swf/mdlSWFTag.h"
#include "swf/tags/TagCodes.h"

namespace tamber {

/// DefineScalingGrid: identifier, RECT of the centre cell in twips.
class clsSWFTagDefineScalingGrid : public clsSWFTag {
public:
    Long ID = 0;
    Long XMin = 0;
    Long XMax = 0;
    Long YMin = 0;
    Long YMax = 0;

    Long TagNum() const override { return TagCode::DefineScalingGrid; }
    void Save() override {
        const std::size_t body = mdlSWFTag::BeginTag(TagNum());
        mdlSWFTag::SetBytes(2, ID);
        mdlSWFTag::SetRect(XMin, XMax, YMin, YMax);
        mdlSWFTag::EndTagShortest(TagNum(), body);
    }
};

}  // namespace tamber

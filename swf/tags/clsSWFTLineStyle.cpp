#include "swf/tags/clsSWFTLineStyle.h"

#include "swf/mdlSWFTag.h"

namespace tamber {

void clsSWFTLineStyle::SaveOptions() const {
    mdlSWFTag::SetBits(2, StartCapStyle);
    mdlSWFTag::SetBits(2, JoinStyle);
    mdlSWFTag::SetBits(1, inFillStyle ? 1 : 0);
    mdlSWFTag::SetBits(1, blNoHScaleFlag ? 1 : 0);
    mdlSWFTag::SetBits(1, blNoVScaleFlag ? 1 : 0);
    mdlSWFTag::SetBits(1, blPixelHintingFlag ? 1 : 0);
    mdlSWFTag::SetBits(5, 0);
    mdlSWFTag::SetBits(1, blNoClose ? 1 : 0);
    mdlSWFTag::SetBits(2, EndCapStyle);
    if (JoinStyle == JoinMiter) mdlSWFTag::SetBytes(2, MiterLimitFactor);
}

void clsSWFTLineStyle::Save(Long version, const clsSWFTLineStyle* other) const {
    mdlSWFTag::SetBytes(2, Width);
    if (other != nullptr) mdlSWFTag::SetBytes(2, other->Width);
    const bool extended = version >= 4 || version < -1;
    if (extended) SaveOptions();
    if (extended && inFillStyle) {
        inFillStyle->Save(other != nullptr ? other->inFillStyle.get() : nullptr);
        return;
    }
    mdlSWFTag::SetBytes(4, Color);
    if (other != nullptr) mdlSWFTag::SetBytes(4, other->Color);
}

}  // namespace tamber

#include "swf/tags/clsSWFTagDefineBitsJPEG.h"

#include "swf/mdlSWFTag.h"

namespace tamber {

namespace {
/// EOI and SOI in front of the stream, as older players want them.
constexpr Long LeadingMarkers = static_cast<Long>(0xD8FFD9FF);
}  // namespace

void clsSWFTagDefineBitsJPEG::Save() {
    const auto n = static_cast<Long>(jpeg_.size());
    const auto a = static_cast<Long>(alpha_.size());
    mdlSWFTag::SetTagHeader(TagNum(), ver_ == 2 ? n + 6 : n + a + 10, true);
    mdlSWFTag::SetBytes(2, ID);
    if (ver_ == 3) mdlSWFTag::SetBytes(4, n + 4);
    mdlSWFTag::SetBytes(4, LeadingMarkers);
    mdlSWFTag::SetByteArray(jpeg_);
    mdlSWFTag::SetByteArray(alpha_);
}

}  // namespace tamber

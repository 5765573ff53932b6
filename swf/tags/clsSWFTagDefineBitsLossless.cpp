#include "swf/tags/clsSWFTagDefineBitsLossless.h"

#include "swf/mdlSWFTag.h"

namespace tamber {

void clsSWFTagDefineBitsLossless::SetBitmap(Bytes stream, Long bitCount) {
    switch (bitCount) {
        case 8:
            Format = 3;
            Ver = 2;
            break;
        case 16:
            Format = 4;
            Ver = 1;
            break;
        case 32:
            Format = 5;
            Ver = 2;
            break;
        default:
            return;
    }
    pixels_ = std::move(stream);
}

void clsSWFTagDefineBitsLossless::Save() {
    const bool mapped = Format == 3;
    const auto length = static_cast<Long>(pixels_.size()) + (mapped ? 8 : 7);
    mdlSWFTag::SetTagHeader(TagNum(), length, true);
    mdlSWFTag::SetBytes(2, ID);
    mdlSWFTag::SetBytes(1, Format);
    mdlSWFTag::SetBytes(2, Width);
    mdlSWFTag::SetBytes(2, height);
    if (mapped) mdlSWFTag::SetBytes(1, 255);
    mdlSWFTag::SetByteArray(pixels_);
}

}  // namespace tamber
